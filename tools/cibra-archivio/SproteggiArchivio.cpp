#include "SproteggiArchivio.h"

#include "CambiaPassword.h"
#include "platform/Failure.h"
#include "SegniDiCifra.h"
#include "SostituisciArchivio.h"

void sproteggiArchivio(const QString &told, const QString &password)
{
    const QString path = fileDellArchivio(told);
    // A plain archive opens whatever the password.
    if (eInChiaro(path))
        throw Failure(FailureNumber::PathAccess, QStringLiteral("L'archivio \"%1\" non ha una password").arg(path));
    cambiaPassword(path, password, {});
}
