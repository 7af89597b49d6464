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

QString SenzaBlanchi(const QString &testo)
{
    qsizetype from = 0;
    qsizetype to = testo.size();
    while (from < to && testo[from] == u' ')
        ++from;
    while (to > from && testo[to - 1] == u' ')
        --to;
    return testo.mid(from, to - from);
}

bool RigaDiAlimento(const QString &riga)
{
    return riga.contains(u'-');
}
