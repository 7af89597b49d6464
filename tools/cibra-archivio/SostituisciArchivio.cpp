#include "SostituisciArchivio.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveLock.h"
#include "platform/store/ArchiveSigns.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Making the copy has taken in the journal of a killed program; one that is there still would be taken for the copy's.
void rifiutaGiornale(const QString &path)
{
    if (hasJournal(path))
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("Accanto all'archivio \"%1\" resta un giornale con delle modifiche: aprirlo una "
                                     "volta con il programma e riprovare")
                          .arg(path));
}

} // namespace

void rifiutaInUso(const QString &path)
{
    if (isLockedByAnother(path))
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("L'archivio \"%1\" è aperto da un altro programma").arg(path));
}

void sostituisciArchivio(const FileProvvisorio &copia, const QString &path)
{
    rifiutaInUso(path);
    rifiutaGiornale(path);
    QFile::setPermissions(copia.path(), QFileInfo(path).permissions());
    copia.sostituisciOriginale();
}
