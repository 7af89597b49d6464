#include "ProteggiArchivio.h"

#include "CambiaPassword.h"
#include "core/CopieDiSicurezza.h"
#include "platform/Failure.h"
#include "SegniDiCifra.h"
#include "SostituisciArchivio.h"

#include <QFile>
#include <QRegularExpression>

namespace {

// A damaged archive may have lost its beginning: it counts as plain unless it looks like chance. A journal is what its
// archive is.
bool siLegge(const QString &copy)
{
    static const QRegularExpression ending(QStringLiteral("-(wal|journal)$"));
    QFile file(QString(copy).remove(ending));
    if (!file.open(QIODevice::ReadOnly))
        return file.fileName() != copy;
    const QByteArray start = file.read(kInizioCifrato);
    return !pareCifrato(start);
}

} // namespace

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
    QStringList plain = CopieDi(path) + TenutiComErano(path);
    plain.removeIf([](const QString &copy) { return !siLegge(copy); });
    return plain;
}
