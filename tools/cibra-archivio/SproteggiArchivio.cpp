#include "SproteggiArchivio.h"

#include "CambiaPassword.h"
#include "platform/Failure.h"
#include "platform/store/Connection.h"

void sproteggiArchivio(const QString &told, const QString &password)
{
    const QString path = fileDellArchivio(told);
    // A plain archive opens whatever the password.
    if (Connection archive; archive.Open(path))
        throw Failure(FailureNumber::PathAccess, QStringLiteral("L'archivio \"%1\" non ha una password").arg(path));
    cambiaPassword(path, password, {});
}
