#include "ProteggiArchivio.h"

#include "CambiaPassword.h"
#include "core/CopieDiSicurezza.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"

#include <QFile>

void proteggiArchivio(const QString &told, const QString &password)
{
    if (password.isEmpty())
        throw Failure(FailureNumber::PathAccess, QStringLiteral("La password è vuota"));
    const QString path = fileDellArchivio(told);
    try {
        cambiaPassword(path, {}, password);
    } catch (const Failure &failure) {
        if (failure.number() != FailureNumber::LoginRefused)
            throw;
        throw Failure(FailureNumber::PathAccess, QStringLiteral("L'archivio \"%1\" ha già una password").arg(path));
    }
}

QStringList copieInChiaro(const QString &path)
{
    QStringList plain;
    for (const QString &copy : CopieDi(path)) {
        QFile file(copy);
        if (file.open(QIODevice::ReadOnly) && isPlainArchive(file.read(kArchiveSign)))
            plain += copy;
    }
    return plain;
}
