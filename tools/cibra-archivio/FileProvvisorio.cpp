#include "FileProvvisorio.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <filesystem>

namespace {

// No name that a person would give to a file of his own: such a file would go with those of dead processes.
const QString kMarchio = QStringLiteral(".provvisorio-");

QString nomeLibero(const QString &path)
{
    const QString base = QStringLiteral("%1%2%3-").arg(path, kMarchio).arg(QCoreApplication::applicationPid());
    static int number = 0; // a name that is taken stands in no folder yet
    do
        ++number;
    while (QFileInfo::exists(base + QString::number(number)));
    return base + QString::number(number);
}

// The file itself and those that the engine puts beside it.
QStringList tuttiDi(const QString &path)
{
    return QStringList(path) + companionFiles(path);
}

bool eMorto(const QString &process)
{
    return kill(pid_t(process.toLong()), 0) != 0 && errno == ESRCH;
}

void togliQuelliDeiMorti(const QString &path)
{
    const QFileInfo file(path);
    const QRegularExpression name(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(file.fileName() + kMarchio) +
                                            QStringLiteral("(\\d{1,9})-\\d+(-wal|-shm|-journal)?")));
    QDir folder(file.path());
    for (const QString &found : folder.entryList(QDir::Files | QDir::Hidden))
        if (const auto match = name.match(found); match.hasMatch() && eMorto(match.captured(1)))
            folder.remove(found);
}

QString nomeNellaCartellaPulita(const QString &path)
{
    togliQuelliDeiMorti(path);
    return nomeLibero(path);
}

} // namespace

FileProvvisorio::FileProvvisorio(const QString &path)
    : m_finalPath(path), m_path(nomeNellaCartellaPulita(path)), m_alSegnale(tuttiDi(m_path))
{
}

FileProvvisorio::~FileProvvisorio()
{
    for (const QString &file : tuttiDi(m_path))
        QFile::remove(file);
}

void FileProvvisorio::diventaNuovo() const
{
    if (!QFile::rename(m_path, m_finalPath))
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("Il file \"%1\" non si può creare o esiste già").arg(m_finalPath));
}

void FileProvvisorio::sostituisciOriginale() const
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(m_finalPath).constData(), error);
    if (error)
        throw Failure(FailureNumber::PathAccess,
                      QStringLiteral("Il file \"%1\" non si può sostituire").arg(m_finalPath));
}
