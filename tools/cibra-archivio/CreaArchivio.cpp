#include "CreaArchivio.h"

#include "CatalogoEsempio.h"
#include "FileProvvisorio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString risorsa(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure::usual(FailureNumber::FileNotFound, path);
    return QString::fromUtf8(file.readAll());
}

void crea(const QString &path, const QString &script)
{
    // A link that leads nowhere is a file of somebody's, too.
    const QFileInfo info(path);
    if (info.exists() || info.isSymLink())
        throw Failure(FailureNumber::PathAccess, QStringLiteral("Il file \"%1\" esiste già").arg(path));
    if (!QFileInfo(info.path()).isWritable())
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("La cartella \"%1\" non c'è o non si può scrivere").arg(info.path()));
    const FileProvvisorio file(path);
    makeArchive(file.path(), script);
    file.diventaNuovo();
}

} // namespace

QString scriptSchema()
{
    return risorsa(QStringLiteral(":/archive/schema.sql"));
}

QString scriptSchemaSistema()
{
    return risorsa(QStringLiteral(":/archive/schema-sistema.sql"));
}

void creaArchivioNuovo(const QString &path)
{
    crea(path, scriptSchema());
}

void creaArchivioEsempio(const QString &path, QDate day)
{
    crea(path, scriptSchema() + scriptCatalogoEsempio(day));
}

void creaArchivioSistema(const QString &path)
{
    crea(path, scriptSchemaSistema());
}
