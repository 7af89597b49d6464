#include "shell/MarcatoreSfondo.h"

#include "platform/text/TextFile.h"

namespace {
const QString kMarcatore = QStringLiteral("\\Sfondo");
}

bool SfondoVisibile(const ProgramFolder &folder)
{
    return folder.fileExists(kMarcatore);
}

void SegnaSfondo(const ProgramFolder &folder)
{
    TextWriter marker(folder.resolve(kMarcatore));
    marker.line(QString());
    marker.close();
}

void TogliSegnoSfondo(const ProgramFolder &folder)
{
    folder.deleteFile(kMarcatore);
}
