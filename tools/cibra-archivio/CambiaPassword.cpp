#include "CambiaPassword.h"

#include "CopiaGrezza.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "SostituisciArchivio.h"

namespace {

Failure rifiuto(const QString &words)
{
    return Failure(FailureNumber::PathAccess, words);
}

// `path` is the archive's name, `file` where its bytes are.
void controllaOriginale(const QString &path, const QString &file, const QString &password)
{
    Connection archive;
    const OpenResult opened = archive.OpenForInspection(file, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        throw Failure(FailureNumber::LoginRefused, opened.words);
    if (!opened)
        throw rifiuto(QStringLiteral("L'archivio \"%1\" non si apre: %2").arg(path, opened.words));
    if (const QStringList faults = integrityCheck(file, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("L'archivio \"%1\" è danneggiato: %2").arg(path, faults.first()));
}

// The copy must open with its password, be sound and hold every value of the original.
void controllaCopia(const QString &path, const QString &password, const QMap<QString, TableContent> &wanted)
{
    if (const QStringList faults = integrityCheck(path, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("La copia è danneggiata: %1").arg(faults.first()));
    const QMap<QString, TableContent> found = tableContents(path, password);
    if (found.keys() != wanted.keys())
        throw rifiuto(QStringLiteral("La copia non ha tutte le tabelle"));
    for (auto table = wanted.begin(); table != wanted.end(); ++table)
        if (found.value(table.key()) != table.value())
            throw rifiuto(QStringLiteral("La copia non ha tutte le righe di \"%1\"").arg(table.key()));
}

} // namespace

void cambiaPassword(const QString &path, const QString &vecchia, const QString &nuova)
{
    const auto fermo = tieniFermoIntero(path, vecchia);
    const CopiaGrezza original(path);
    controllaOriginale(path, original.path(), vecchia);
    const FileProvvisorio copy(path);
    copyEncrypted(original.path(), copy.path(), nuova, vecchia);
    controllaCopia(copy.path(), nuova, tableContents(original.path(), vecchia));
    sostituisciArchivio(copy, path, *fermo);
}
