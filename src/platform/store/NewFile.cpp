#include "platform/store/NewFile.h"

#include "platform/Failure.h"

#include <QFile>
#include <QFileInfo>

NewFile::NewFile(const QString &path, Readers readers) : m_path(path)
{
    constexpr QIODevice::OpenMode kNew = QIODevice::WriteOnly | QIODevice::NewOnly;
    QFile file(path);
    if (!(readers == Readers::Usual ? file.open(kNew) : file.open(kNew, QFile::ReadOwner | QFile::WriteOwner)))
        throw Failure::usual(FailureNumber::PathAccess,
                             QFileInfo::exists(path) ? path + QStringLiteral(" esiste già") : path);
}

NewFile::~NewFile()
{
    if (!m_done)
        QFile::remove(m_path);
}
