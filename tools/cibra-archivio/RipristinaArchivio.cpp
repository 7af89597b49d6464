#include "RipristinaArchivio.h"

#include "core/CopieDiSicurezza.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/BackUp.h"
#include "SostituisciArchivio.h"

#include <QFile>
#include <QFileInfo>

namespace {

Failure rifiuto(const QString &words)
{
    return Failure(FailureNumber::PathAccess, words);
}

void apriCopia(Connection &copy, const QString &path, const QString &password)
{
    if (!QFileInfo(path).isFile())
        throw rifiuto(QStringLiteral("Il file \"%1\" non c'è").arg(path));
    const OpenResult opened = copy.OpenForInspection(path, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        throw Failure(FailureNumber::LoginRefused, opened.words);
    if (!opened)
        throw rifiuto(QStringLiteral("La copia \"%1\" non si apre: %2").arg(path, opened.words));
    if (!copy.hasTable(QStringLiteral("Piatti")) || !copy.hasTable(QStringLiteral("SchedaPranzo")))
        throw rifiuto(QStringLiteral("Il file \"%1\" non è la copia di un archivio di questo programma").arg(path));
}

void controlla(const QString &path, const QString &password, const QString &told)
{
    if (const QStringList faults = integrityCheck(path, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("La copia \"%1\" è danneggiata: %2").arg(told, faults.first()));
}

void tieni(const QString &from, const QString &to)
{
    if (QFileInfo::exists(from) && !QFile::copy(from, to))
        throw rifiuto(QStringLiteral("L'archivio di prima non si può tenere in \"%1\"").arg(to));
}

// File by file, whatever it may be: first of all, because opening a damaged archive may change it.
QString tieniComE(const QString &path, const QDateTime &when)
{
    const QString kept = NomeDiCopia(path, when) + QStringLiteral(".prima");
    tieni(path, kept);
    for (const QLatin1String &ending : kCompanionEndings)
        if (QFileInfo(path + ending).size() > 0)
            tieni(path + ending, kept + ending);
    return kept;
}

void scarta(const QString &kept)
{
    for (const QString &file : QStringList(kept) + companionFiles(kept))
        QFile::remove(file);
}

// The present archive as one more safety copy; empty where it does not open, or is damaged.
QString tieniCopiato(const QString &path, const QString &password, const QDateTime &when)
{
    Connection present;
    if (!present.Open(path, password) || !integrityCheck(path, password).isEmpty())
        return {};
    const QString copy = FaiCopia(present, when);
    if (copy.isEmpty())
        throw rifiuto(QStringLiteral("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    return copy;
}

// A sound archive needs no second file beside its safety copy.
QString tieniQuelloDiAdesso(const QString &path, const QString &password, const QDateTime &when)
{
    const QString asItIs = tieniComE(path, when);
    const QString copied = tieniCopiato(path, password, when);
    if (copied.isEmpty())
        return asItIs;
    scarta(asItIs);
    return copied;
}

void togliGiornale(const QString &path)
{
    for (const QString &file : companionFiles(path))
        if (QFileInfo::exists(file) && !QFile::remove(file))
            throw rifiuto(QStringLiteral("Il file \"%1\" non si può togliere").arg(file));
}

} // namespace

QString ripristinaArchivio(const QString &copia, const QString &told, const QString &password, const QDateTime &quando)
{
    const bool isThere = QFileInfo(told).isFile();
    const QString path = isThere ? QFileInfo(told).canonicalFilePath() : QFileInfo(told).absoluteFilePath();
    if (isThere && QFileInfo(copia).canonicalFilePath() == path)
        throw rifiuto(QStringLiteral("La copia e l'archivio sono lo stesso file"));

    const FileProvvisorio restored(path);
    {
        Connection copy;
        apriCopia(copy, copia, password);
        controlla(copia, password, copia);
        backUp(copy, restored.path());
    }
    controlla(restored.path(), password, restored.path());
    QFile::setPermissions(restored.path(), QFileInfo(isThere ? path : copia).permissions());

    QString kept;
    if (isThere) {
        rifiutaInUso(path);
        kept = tieniQuelloDiAdesso(path, password, quando);
        rifiutaInUso(path);
    }
    togliGiornale(path);
    restored.sostituisciOriginale();
    return kept;
}
