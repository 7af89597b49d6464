// The schemas as they lie in the source, which the tool carries inside.
#include "CreaArchivio.h"

#include <QFile>

#include <cstdlib>

namespace {

QString textOf(const char *path)
{
    QFile file(QString::fromUtf8(path));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return QString::fromUtf8(file.readAll());
}

} // namespace

QString scriptSchema()
{
    static const QString script = textOf(CIBRA_SOURCE_DIR "/archive/schema.sql");
    return script;
}

QString scriptSchemaSistema()
{
    static const QString script = textOf(CIBRA_SOURCE_DIR "/archive/schema-sistema.sql");
    return script;
}
