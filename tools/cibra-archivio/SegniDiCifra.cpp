#include "SegniDiCifra.h"

#include "platform/store/ArchiveSigns.h"

#include <QFile>
#include <QSet>

namespace {

constexpr int kFewestOfChance = 200; // of 1024 bytes drawn by chance about 251 values are unlike

} // namespace

bool pareCifrato(const QByteArray &start)
{
    const QSet<char> seen(start.begin(), start.end());
    return start.size() == kInizioCifrato && seen.size() > kFewestOfChance;
}

bool eInChiaro(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isPlainArchive(file.read(kArchiveSign));
}
