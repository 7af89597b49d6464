#include "CambiaPassword.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"
#include "SostituisciArchivio.h"

#include <QFileInfo>

namespace {

Failure rifiuto(const QString &words)
{
    return Failure(FailureNumber::PathAccess, words);
}

void apri(Connection &archive, const QString &path, const QString &password)
{
    const OpenResult opened = archive.Open(path, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        throw Failure(FailureNumber::LoginRefused, opened.words);
    if (!opened)
        throw rifiuto(QStringLiteral("L'archivio \"%1\" non si apre: %2").arg(path, opened.words));
    if (const QStringList faults = integrityCheck(path, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("L'archivio \"%1\" è danneggiato: %2").arg(path, faults.first()));
}

qint64 righe(Connection &archive, const QString &table)
{
    Recordset count;
    count.Open(QStringLiteral("SELECT Count(*) AS Righe FROM [%1]").arg(table), archive, Recordset::Access::ReadOnly);
    return qint64(count.value(0).number());
}

QStringList tabelle(Connection &archive)
{
    Recordset rows;
    rows.Open(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"), archive,
              Recordset::Access::ReadOnly);
    QStringList names;
    for (; !rows.Eof(); rows.MoveNext())
        names += rows.value(0).text();
    return names;
}

// The copy must open with its password, be sound and hold every row of the original.
void controllaCopia(Connection &original, const QString &path, const QString &password)
{
    Connection copy;
    if (const OpenResult opened = copy.Open(path, password); !opened)
        throw rifiuto(QStringLiteral("La copia non si apre: %1").arg(opened.words));
    if (const QStringList faults = integrityCheck(path, password); !faults.isEmpty())
        throw rifiuto(QStringLiteral("La copia è danneggiata: %1").arg(faults.first()));
    const QStringList names = tabelle(original);
    if (tabelle(copy) != names)
        throw rifiuto(QStringLiteral("La copia non ha tutte le tabelle"));
    for (const QString &table : names)
        if (righe(original, table) != righe(copy, table))
            throw rifiuto(QStringLiteral("La copia non ha tutte le righe di \"%1\"").arg(table));
}

} // namespace

QString fileDellArchivio(const QString &told)
{
    const QString path = QFileInfo(told).canonicalFilePath();
    if (!QFileInfo(path).isFile())
        throw rifiuto(QStringLiteral("Il file \"%1\" non c'è").arg(told));
    return path;
}

void cambiaPassword(const QString &path, const QString &vecchia, const QString &nuova)
{
    const FileProvvisorio copy(path);
    {
        Connection original;
        apri(original, path, vecchia);
        copyEncrypted(path, copy.path(), nuova, vecchia);
        controllaCopia(original, copy.path(), nuova);
    }
    sostituisciArchivio(copy, path);
}
