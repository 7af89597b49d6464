#include "SostituisciArchivio.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Connection.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

Failure rifiuto(const QString &words)
{
    return Failure(FailureNumber::PathAccess, words);
}

// What the journal of a killed program holds would be taken for the copy's.
void rifiutaGiornale(const QString &path)
{
    if (hasJournal(path))
        throw rifiuto(QStringLiteral("Accanto all'archivio \"%1\" resta un giornale con delle modifiche: aprirlo una "
                                     "volta con il programma e riprovare")
                          .arg(path));
}

// The engine takes the journal in as it opens the archive, and clears it away as it closes.
void accogliGiornale(const QString &path, const QString &password)
{
    Connection archive;
    const OpenResult opened = archive.OpenForInspection(path, password);
    if (opened.outcome == OpenOutcome::PasswordRichiesta)
        throw Failure(FailureNumber::LoginRefused, opened.words);
    if (!opened)
        throw rifiuto(QStringLiteral("L'archivio \"%1\" non si apre: %2").arg(path, opened.words));
}

void prendiProprietario(const QString &file, const QString &original)
{
    struct stat wanted = {};
    struct stat present = {};
    const QByteArray name = QFile::encodeName(file);
    if (stat(QFile::encodeName(original).constData(), &wanted) != 0 || stat(name.constData(), &present) != 0)
        throw Failure::usual(FailureNumber::PathAccess, original);
    if (wanted.st_uid == present.st_uid && wanted.st_gid == present.st_gid)
        return;
    if (chown(name.constData(), wanted.st_uid, wanted.st_gid) != 0)
        throw rifiuto(QStringLiteral("L'archivio \"%1\" è di un altro utente o di un altro gruppo: il comando va dato "
                                     "da quell'utente")
                          .arg(original));
}

} // namespace

QString fileDellArchivio(const QString &told)
{
    const QString path = QFileInfo(told).canonicalFilePath();
    if (!QFileInfo(path).isFile())
        throw rifiuto(QStringLiteral("Il file \"%1\" non c'è").arg(told));
    return path;
}

std::unique_ptr<ArchiveHold> tieniFermo(const QString &path)
{
    auto hold = std::make_unique<ArchiveHold>(path);
    if (!hold->isHeld())
        throw rifiuto(QStringLiteral("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    return hold;
}

std::unique_ptr<ArchiveHold> tieniFermoIntero(const QString &path, const QString &password)
{
    auto hold = tieniFermo(path);
    if (!hasJournal(path))
        return hold;
    hold.reset(); // the engine must come in
    accogliGiornale(path, password);
    hold = tieniFermo(path);
    rifiutaGiornale(path);
    return hold;
}

void togliFileAccanto(const QString &path)
{
    for (const QString &file : companionFiles(path))
        if (QFileInfo::exists(file) && !QFile::remove(file))
            throw rifiuto(QStringLiteral("Il file \"%1\" non si può togliere").arg(file));
}

void prendiDiritti(const QString &file, const QString &original)
{
    prendiProprietario(file, original);
    if (!QFile::setPermissions(file, QFileInfo(original).permissions()))
        throw Failure::usual(FailureNumber::PathAccess, file);
}

void sostituisciArchivio(const FileProvvisorio &copia, const QString &path, const ArchiveHold &fermo)
{
    rifiutaGiornale(path);
    prendiDiritti(copia.path(), path);
    togliFileAccanto(path);
    copia.sostituisciOriginale();
    fermo.retire();
}
