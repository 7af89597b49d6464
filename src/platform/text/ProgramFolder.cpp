#include "platform/text/ProgramFolder.h"

#include "platform/Failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QStringList componentsOf(const QString &told)
{
    return QString(told).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
}

// The name in `folder` that equals `told` without regard to case, the exact one before all others; `told` itself where
// there is none.
QString existingName(const QString &folder, const QString &told)
{
    const QDir directory(folder);
    if (QFileInfo::exists(directory.filePath(told)))
        return told;
    const QStringList names =
        directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names) {
        if (name.compare(told, Qt::CaseInsensitive) == 0)
            return name;
    }
    return told;
}

QString resolveBelow(const QString &root, const QString &told)
{
    QString path = root;
    for (const QString &component : componentsOf(told)) {
        const QString name = existingName(path, component);
        path += path.endsWith(u'/') ? name : u'/' + name;
    }
    return QDir::cleanPath(path);
}

// Folders that belong to the system although a superuser may write them.
bool isSystemFolder(const QString &folder)
{
    static const QStringList kSystem = {QStringLiteral("/usr"),  QStringLiteral("/bin"), QStringLiteral("/sbin"),
                                        QStringLiteral("/lib"),  QStringLiteral("/opt"), QStringLiteral("/etc"),
                                        QStringLiteral("/lib64")};
    const QString path = QDir::cleanPath(folder) + u'/';
    for (const QString &system : kSystem) {
        if (path.startsWith(system + u'/'))
            return true;
    }
    return path == QStringLiteral("//");
}

} // namespace

ProgramFolder::ProgramFolder(const QString &path) : m_path(QDir::cleanPath(QDir(path).absolutePath())) {}

QString ProgramFolder::resolve(const QString &told) const
{
    return resolveBelow(m_path, told);
}

bool ProgramFolder::fileExists(const QString &told) const
{
    const QFileInfo info(resolve(told));
    return info.isFile() && !info.isHidden();
}

bool ProgramFolder::folderExists(const QString &told) const
{
    return QFileInfo(resolve(told)).isDir();
}

void ProgramFolder::makeFolder(const QString &told) const
{
    const QString path = resolve(told);
    if (!QDir().mkpath(path))
        throw Failure::usual(FailureNumber::PathAccess, path);
}

void ProgramFolder::deleteFile(const QString &told) const
{
    const QString path = resolve(told);
    if (!QFileInfo(path).isFile())
        throw Failure::usual(FailureNumber::FileNotFound, path);
    if (!QFile::remove(path))
        throw Failure::usual(FailureNumber::PathAccess, path);
}

QString ProgramFolder::resolveAbsolute(const QString &path)
{
    const bool fromRoot = path.startsWith(u'/') || path.startsWith(u'\\');
    return resolveBelow(fromRoot ? QDir::rootPath() : QDir::currentPath(), path);
}

QString ProgramFolder::usual(const QString &executableFolder)
{
    if (QFileInfo(executableFolder).isWritable() && !isSystemFolder(executableFolder))
        return executableFolder;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Cibra");
}
