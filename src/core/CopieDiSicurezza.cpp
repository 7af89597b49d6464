#include "core/CopieDiSicurezza.h"

#include "core/ErrorLog.h"
#include "core/Marcatore.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/BackUp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStorageInfo>

#include <algorithm>

namespace {

constexpr qsizetype kCopie = 10;
const QString kMarcatore = QStringLiteral("\\Copie.no");
constexpr int kLockAge = 600000; // milliseconds after which a lock is of a program that is gone, wherever it ran
const QString kMomento = QStringLiteral("yyyy-MM-dd_HH-mm-ss-zzz");
constexpr qsizetype kSecondo = 19; // characters of a name up to its second

// The archive's file name without what a file system of another system refuses.
QString nomePulito(const QString &archivio)
{
    static const QRegularExpression refused(QStringLiteral(R"([<>:"/\\|?*\x00-\x1f]|[. ]$)"));
    return QFileInfo(throughLinks(archivio)).fileName().replace(refused, QStringLiteral("_"));
}

QString nomeAl(const QDateTime &momento, const QString &archivio)
{
    return momento.toString(kMomento) + u'_' + nomePulito(archivio);
}

QString beside(const QString &archivio, const QString &name)
{
    return QDir(CartellaCopie(archivio)).filePath(name);
}

// All that begins like a copy of this archive, whatever follows its name.
QStringList nomiNellaCartella(const QString &archivio, const QString &coda)
{
    const QRegularExpression copy(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d-\\d{3}_") +
                                  QRegularExpression::escape(nomePulito(archivio)) + coda);
    QStringList names = QDir(CartellaCopie(archivio)).entryList(QDir::Files | QDir::Hidden).filter(copy);
    names.sort();
    return names;
}

void assicuraCartella(const QString &archivio)
{
    const QString folder = CartellaCopie(archivio);
    if (!QDir().mkpath(folder))
        throw Failure::usual(FailureNumber::PathAccess, folder);
}

// The last room of a disk is for the archive, not for its copies.
void chiediSpazio(const QFileInfo &archivio, const QString &folder)
{
    const qint64 room = QStorageInfo(folder).bytesAvailable();
    if (room >= 0 && room < 2 * archivio.size())
        throw Failure(FailureNumber::PathAccess, QStringLiteral("sul disco non c'è spazio"));
}

void togli(const QString &path)
{
    if (QFileInfo::exists(path) && !QFile::remove(path))
        throw Failure::usual(FailureNumber::PathAccess, path);
}

// The name under which a copy grows: what a killed program left there is removed first, and what is left at the end.
class Parziale
{
public:
    explicit Parziale(const QString &path) : m_path(path)
    {
        for (const QString &left : QStringList(path) + companionFiles(path))
            togli(left);
    }
    ~Parziale() { QFile::remove(m_path); }
    Parziale(const Parziale &) = delete;
    Parziale &operator=(const Parziale &) = delete;

    const QString &path() const { return m_path; }
    void diventa(const QString &copia) const
    {
        if (!QFile::rename(m_path, copia))
            throw Failure::usual(FailureNumber::PathAccess, copia);
    }

private:
    QString m_path;
};

// Time and rights of the archive. By its time a copy is known as that of the archive as it is.
void somiglia(const QString &copia, const QFileInfo &archivio)
{
    QFile file(copia);
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(archivio.lastModified(), QFileDevice::FileModificationTime) ||
        !file.setPermissions(archivio.permissions()))
        throw Failure::usual(FailureNumber::PathAccess, copia);
}

bool eCopiaDi(const QFileInfo &copia, const QFileInfo &archivio)
{
    return copia.size() == archivio.size() && copia.lastModified() == archivio.lastModified();
}

// What is still in the journal stands in no copy so far.
bool giaCopiato(const QString &archivio)
{
    if (hasJournal(archivio))
        return false;
    const QFileInfo file(throughLinks(archivio));
    const QStringList copies = CopieDi(archivio);
    return std::any_of(copies.begin(), copies.end(),
                       [&](const QString &copy) { return eCopiaDi(QFileInfo(copy), file); });
}

// A copy that is named later than the one just made was made before it, by a clock that was wrong.
void sfoltisci(const QString &archivio, const QString &nuova)
{
    QStringList others = CopieDi(archivio);
    const qsizetype place = others.indexOf(nuova);
    others = others.sliced(place + 1) + others.first(place);
    while (others.size() >= kCopie)
        togli(others.takeFirst());
}

void avvisa(ModNetServer &modulo, const Failure &failure)
{
    if (modulo.CopiaMancata)
        return;
    modulo.CopiaMancata = true;
    ScriviLogErrore(modulo, QStringLiteral("CopiaDiSicurezza "),
                    Failure(failure.number(),
                            QStringLiteral("La copia di sicurezza dell'archivio non è stata fatta, quelle di prima "
                                           "restano: ") +
                                failure.words()));
}

void copiaERuota(ModNetServer &modulo)
{
    Connection &archivio = modulo.dati();
    if (giaCopiato(archivio.path()))
        return;
    const QString nuova = FaiCopia(archivio, modulo.mondo.orologio.now());
    if (nuova.isEmpty())
        avvisa(modulo, Failure(FailureNumber::PathAccess, QStringLiteral("un altro programma ne sta facendo una")));
    else
        sfoltisci(archivio.path(), nuova);
}

} // namespace

QString CartellaCopie(const QString &archivio)
{
    return ProgramFolder(QFileInfo(throughLinks(archivio)).absolutePath()).resolve(QStringLiteral("Copie"));
}

QStringList CopieDi(const QString &archivio)
{
    QStringList paths;
    for (const QString &name : nomiNellaCartella(archivio, QStringLiteral("$")))
        paths += beside(archivio, name);
    return paths;
}

QStringList TenutiComErano(const QString &archivio)
{
    QStringList paths;
    for (const QString &name : nomiNellaCartella(archivio, QStringLiteral("\\.prima(-wal|-journal)?$")))
        paths += beside(archivio, name);
    return paths;
}

QString NomeDiCopia(const QString &archivio, const QDateTime &quando)
{
    assicuraCartella(archivio);
    const QString second = quando.toString(kMomento).left(kSecondo);
    QString last;
    for (const QString &name : nomiNellaCartella(archivio, {}))
        if (name.startsWith(second))
            last = name;
    QDateTime moment = quando;
    while (!last.isEmpty() && nomeAl(moment, archivio) <= last)
        moment = moment.addMSecs(1);
    return beside(archivio, nomeAl(moment, archivio));
}

QString FaiCopia(Connection &archivio, const QDateTime &quando)
{
    const QFileInfo file(throughLinks(archivio.path()));
    const QString copy = NomeDiCopia(archivio.path(), quando);
    const QString base = beside(archivio.path(), nomePulito(archivio.path()));

    QLockFile alone(base + QStringLiteral(".lock"));
    alone.setStaleLockTime(kLockAge);
    if (!alone.tryLock(0)) {
        if (alone.error() == QLockFile::LockFailedError)
            return {};
        throw Failure::usual(FailureNumber::PathAccess, CartellaCopie(archivio.path()));
    }

    const Parziale partial(base + QStringLiteral(".parziale"));
    chiediSpazio(file, CartellaCopie(archivio.path()));
    backUp(archivio, partial.path());
    somiglia(partial.path(), file);
    partial.diventa(copy);
    return copy;
}

void CopiaDiSicurezza(ModNetServer &modulo)
{
    if (!modulo.ConnessioneDati || !modulo.ConnessioneDati->isOpen() ||
        Marcatore(modulo.mondo.folder, kMarcatore).presente())
        return;
    try {
        copiaERuota(modulo);
    } catch (const Failure &failure) {
        avvisa(modulo, failure);
    }
}
