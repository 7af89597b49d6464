#include "shell/RigheDelMemo.h"

#include "platform/text/TextFile.h"

void LeggiRigheDelMemo(ModNetServer &modulo, const QString &temporaneo, const QString &memo,
                       const std::function<void(const QString &riga)> &riga)
{
    const QString path = modulo.mondo.folder.resolve(temporaneo);
    TextWriter writer(path);
    writer.line(memo);
    writer.close();
    TextReader reader(path);
    while (!reader.atEnd()) {
        modulo.RigaLetta = reader.line();
        riga(modulo.RigaLetta);
    }
}

bool RigaDiAlimento(const QString &riga)
{
    return riga.contains(u'-');
}
