#include "platform/store/ArchiveSigns.h"

#include <QFileInfo>

namespace {

constexpr QByteArrayView kPlainHeader("SQLite format 3");
constexpr QByteArrayView kJetName("Standard Jet DB");
constexpr qsizetype kJetNameAt = 4;

} // namespace

bool isPlainArchive(QByteArrayView start)
{
    return start.startsWith(kPlainHeader);
}

bool isJetFile(QByteArrayView start)
{
    return start.size() > kJetNameAt && start.sliced(kJetNameAt).startsWith(kJetName);
}

QStringList companionFiles(const QString &path)
{
    QStringList files;
    for (const QLatin1String &ending : kCompanionEndings)
        files += path + ending;
    return files;
}

bool hasJournal(const QString &path)
{
    return QFileInfo(path + kWriteAheadLog).size() > 0 || QFileInfo(path + kRollbackJournal).size() > 0;
}
