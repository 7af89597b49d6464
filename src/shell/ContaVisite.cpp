#include "shell/ContaVisite.h"

#include "platform/text/Numbers.h"
#include "platform/text/TextFile.h"

#include <cmath>

QString ContaVisita(const ProgramFolder &folder)
{
    const QString told = QStringLiteral("\\Cont.log");
    double count = 1;
    if (folder.fileExists(told)) {
        TextReader reader(folder.resolve(told));
        count = std::nearbyint(Val(reader.atEnd() ? QString() : reader.line()) + 1); // half to even
    }
    const QString text = TestoNumero(count);
    TextWriter writer(folder.resolve(told));
    writer.line(text);
    writer.close();
    return text;
}
