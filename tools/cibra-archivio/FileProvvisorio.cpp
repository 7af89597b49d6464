#include "FileProvvisorio.h"

#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

QString nomeLibero(const QString &path)
{
    const QString base = QStringLiteral("%1.%2-").arg(path).arg(QCoreApplication::applicationPid());
    int number = 1;
    while (QFileInfo::exists(base + QString::number(number)))
        ++number;
    return base + QString::number(number);
}

// The file itself and those that the engine puts beside it.
QStringList tuttiDi(const QString &path)
{
    return QStringList(path) + companionFiles(path);
}

} // namespace

FileProvvisorio::FileProvvisorio(const QString &path)
    : m_finalPath(path), m_path(nomeLibero(path)), m_alSegnale(tuttiDi(m_path))
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
