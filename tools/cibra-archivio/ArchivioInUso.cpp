#include "ArchivioInUso.h"

#include "platform/Failure.h"

#include <QFileInfo>

void rifiutaInUso(const QString &path)
{
    if (QFileInfo(path + "-wal").size() > 0 || QFileInfo::exists(path + "-shm"))
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("L'archivio \"%1\" è aperto da un altro programma").arg(path));
}
