#include "pages/FileModello.h"

#include "platform/Failure.h"
#include "platform/text/CodePage.h"

#include <QFile>

QByteArray TestoModello(const char *file)
{
    QFile resource(QStringLiteral(":/pagina/") + file);
    if (!resource.open(QIODevice::ReadOnly))
        throw Failure::usual(FailureNumber::FileNotFound, resource.fileName());
    QByteArray text = toWindows1252(QString::fromUtf8(resource.readAll()));
    text.chop(1);
    return text;
}
