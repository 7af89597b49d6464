#include "RipristinaArchivio.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/BackUp.h"
#include "QuelloDiPrima.h"
#include "SegniDiCifra.h"
#include "SostituisciArchivio.h"
#include "VerificaArchivio.h"

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

QString rimedio(const QString &path, const QString &password)
{
    return verificaArchivio(path, password).esito == Verifica::Esito::IndiciDaRiparare
               ? QStringLiteral(". Sono rovinati solo gli indici: verifica --ripara li rifà")
               : QString();
}

void controllaCopia(const QString &path, const QString &password)
{
    {
        Connection copy;
        apriCopia(copy, path, password);
    }
    if (const QStringList faults = integrityCheck(path, password); !faults.isEmpty())
        throw rifiuto(
            QStringLiteral("La copia \"%1\" è danneggiata: %2%3").arg(path, faults.first(), rimedio(path, password)));
}

void copiaControllata(const QString &from, const QString &to, const QString &password)
{
    {
        Connection copy;
        apriCopia(copy, from, password);
        backUp(copy, to);
    }
    if (const QStringList faults = integrityCheck(to, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("La copia \"%1\" è danneggiata: %2").arg(to, faults.first()));
}

void mettiNuovo(const FileProvvisorio &nuovo, const QString &path, const QString &copia)
{
    QFile::setPermissions(nuovo.path(), QFileInfo(copia).permissions());
    togliFileAccanto(path); // left by an archive that is gone; the new one has no part in them
    nuovo.diventaNuovo();
}

} // namespace

Ripristino ripristinaArchivio(const QString &copia, const QString &told, const QString &password,
                              const QDateTime &quando)
{
    const QFileInfo file(throughLinks(told));
    const bool isThere = file.isFile();
    const QString path = isThere ? file.canonicalFilePath() : file.absoluteFilePath();
    if (isThere && QFileInfo(copia).canonicalFilePath() == path)
        throw rifiuto(QStringLiteral("La copia e l'archivio sono lo stesso file"));

    controllaCopia(copia, password);
    const auto fermo = isThere ? tieniFermo(path) : nullptr;
    const FileProvvisorio nuovo(path);
    copiaControllata(copia, nuovo.path(), password);
    if (!fermo) {
        mettiNuovo(nuovo, path, copia);
        return {};
    }
    QuelloDiPrima prima(path, password, quando);
    prendiDiritti(nuovo.path(), path);
    prima.resta(); // from here on it holds what the journal held
    togliFileAccanto(path);
    sostituisciArchivio(nuovo, path, *fermo);
    return {prima.path(), prima.eraProtetto() && eInChiaro(path)};
}
