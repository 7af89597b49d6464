// An old file damaged in some places: it is refused, or read as a whole stream. Where nothing but the ends of pages or
// of the file were overwritten with zeros, what is read is what stands in the sample, or is a text that holds zeros.
//
// The reading runs in a child, because the library crashes and loops on damaged files, which is known.
#include "FlussoMdb.h"
#include "LeggiMdb.h"
#include "platform/Failure.h"

#include <QFile>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr qsizetype kSector = 512;
constexpr unsigned kSeconds = 20; // of a reading
constexpr std::size_t kEdit = 6;  // bytes of the input for each: what, page, place, value

// An unnamed file that both processes reach by the same name.
class Fogli
{
public:
    explicit Fogli(const char *name) : m_descriptor(memfd_create(name, 0)) {}
    ~Fogli() { close(m_descriptor); }
    Fogli(const Fogli &) = delete;
    Fogli &operator=(const Fogli &) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }
    void put(const QByteArray &bytes) const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            std::abort();
    }
    QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    int m_descriptor;
};

std::optional<ContenutoMdb> contentOf(const QByteArray &bytes)
{
    const Fogli old("vecchio");
    const Fogli stream("flusso");
    old.put(bytes);
    const pid_t child = fork();
    if (child == 0) {
        alarm(kSeconds);
        std::FILE *out = std::fopen(stream.path().toUtf8().constData(), "wb");
        if (!out || !std::freopen("/dev/null", "w", stderr))
            std::_Exit(1);
        leggiMdb(old.path(), out);
        std::_Exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (status != 0)
        return std::nullopt;
    try {
        LettoreFlusso reader;
        reader.aggiungi(stream.bytes());
        return reader.prendi();
    } catch (const Failure &) {
        return std::nullopt;
    }
}

struct Campione
{
    qsizetype page;
    QByteArray bytes;
    ContenutoMdb content;

    Campione(const char *name, qsizetype size) : page(size)
    {
        QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + QString::fromUtf8(name));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        bytes = file.readAll();
        const std::optional<ContenutoMdb> read = contentOf(bytes);
        if (!read)
            std::abort();
        content = *read;
    }
};

void zero(QByteArray &bytes, qsizetype from, qsizetype to)
{
    std::fill(bytes.begin() + from, bytes.begin() + to, '\0');
}

// Whether it wrote nothing but zeros up to the end of a page or of the file.
bool edit(QByteArray &bytes, qsizetype pageSize, const unsigned char *told)
{
    const qsizetype pages = bytes.size() / pageSize;
    const qsizetype page = 1 + told[1] % (pages - 1); // the head is tried elsewhere
    const qsizetype place = (told[2] | told[3] << 8) % pageSize;
    const qsizetype at = page * pageSize + place;
    switch (told[0] % 5) {
    case 0:
        zero(bytes, at - at % kSector, (page + 1) * pageSize);
        return true;
    case 1:
        zero(bytes, at - at % kSector, bytes.size());
        return true;
    case 2:
        bytes[at] = char(told[4]);
        return false;
    case 3: { // where the numbers of a page's head lie, for the most part
        const qsizetype start = page * pageSize + place % 64;
        bytes[start] = char(told[4]);
        bytes[start + 1] = char(told[5]);
        return false;
    }
    default:
        bytes.replace(page * pageSize, pageSize, bytes.mid((1 + told[4] % (pages - 1)) * pageSize, pageSize));
        return false;
    }
}

bool sameOrMarked(const ValoreMdb &found, const ValoreMdb &expected)
{
    const auto *text = std::get_if<QString>(&found);
    return found == expected || (text && text->contains(QChar::Null));
}

bool sameOrMarked(const TabellaMdb &found, const TabellaMdb &expected)
{
    if (found.nome != expected.nome || found.righe.size() != expected.righe.size() ||
        found.colonne.size() != expected.colonne.size())
        return false;
    for (std::size_t row = 0; row < found.righe.size(); ++row)
        for (std::size_t i = 0; i < found.righe[row].size(); ++i)
            if (!sameOrMarked(found.righe[row][i], expected.righe[row][i]))
                return false;
    return true;
}

void mustBeSame(const ContenutoMdb &found, const ContenutoMdb &expected)
{
    if (found.tabelle.size() != expected.tabelle.size())
        std::abort();
    for (std::size_t i = 0; i < found.tabelle.size(); ++i)
        if (!sameOrMarked(found.tabelle[i], expected.tabelle[i])) {
            std::fprintf(stderr, "%s\n", qPrintable(expected.tabelle[i].nome));
            std::abort();
        }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const std::array samples = {Campione("famiglia2000.mdb", 4096), Campione("famiglia97.mdb", 2048)};
    if (size < 1 + kEdit)
        return 0;
    const Campione &sample = samples[data[0] % samples.size()];
    QByteArray bytes = sample.bytes;
    bool onlyZeros = true;
    for (std::size_t at = 1; at + kEdit <= size; at += kEdit)
        onlyZeros = edit(bytes, sample.page, data + at) && onlyZeros;
    const std::optional<ContenutoMdb> found = contentOf(bytes);
    if (found && onlyZeros)
        mustBeSame(*found, sample.content);
    return 0;
}
