#include "catalogue/ElencoMenu.h"

#include "platform/text/TextFile.h"

void AssicuraElencoMenu(ModNetServer &modulo, const QString &form, const std::vector<VoceMenu> &voci)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    const QString file = QStringLiteral("\\INI\\") + form + QStringLiteral(".mnu");
    if (folder.fileExists(file))
        return;
    if (!folder.folderExists(QStringLiteral("\\INI")))
        folder.makeFolder(QStringLiteral("INI"));
    TextWriter writer(folder.resolve(file));
    for (const auto &[name, caption] : voci) {
        if (name.left(3).toUpper() == QStringLiteral("MNU"))
            writer.line(name + u'=' + caption);
    }
    writer.close();
}
