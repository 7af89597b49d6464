#include "platform/store/ArchiveSigns.h"

#include <QFileInfo>

namespace {

constexpr QByteArrayView kPlainHeader("SQLite format 3");
constexpr QByteArrayView kJetName("Standard Jet DB");
constexpr qsizetype kJetNameAt = 4;
constexpr int kMostLinks = 40; // in a row; more are a circle

} // namespace

bool isPlainArchive(QByteArrayView start)
{
    return start.startsWith(kPlainHeader);
}

bool isJetFile(QByteArrayView start)
{
    return start.size() > kJetNameAt && start.sliced(kJetNameAt).startsWith(kJetName);
}

QString throughLinks(const QString &path)
{
    QFileInfo file(path);
    if (!file.isSymLink())
        return path;
    for (int link = 0; link < kMostLinks && !file.exists() && file.isSymLink(); ++link)
        file.setFile(file.symLinkTarget());
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

QStringList companionFiles(const QString &path)
{
    const QString file = throughLinks(path);
    QStringList files;
    for (const QLatin1String &ending : kCompanionEndings)
        files += file + ending;
    return files;
}

bool hasJournal(const QString &path)
{
    const QString file = throughLinks(path);
    return QFileInfo(file + kWriteAheadLog).size() > 0 || QFileInfo(file + kRollbackJournal).size() > 0;
}
