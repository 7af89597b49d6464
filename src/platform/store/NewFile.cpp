#include "platform/store/NewFile.h"

#include "platform/Failure.h"

#include <QFile>
#include <QFileInfo>

NewFile::NewFile(const QString &path) : m_path(path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw Failure::usual(FailureNumber::PathAccess,
                             QFileInfo::exists(path) ? path + QStringLiteral(" esiste già") : path);
}

NewFile::~NewFile()
{
    if (!m_done)
        QFile::remove(m_path);
}
