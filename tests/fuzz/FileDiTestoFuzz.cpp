// Whatever a text file of the program holds: it is read line by line to its end, and what is written of it is read as
// the same. The tables of the archive tool are read or refused.
#include "Csv.h"
#include "platform/Failure.h"
#include "platform/text/CodePage.h"
#include "platform/text/TextFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fault(const char *rule)
{
    std::fprintf(stderr, "%s\n", rule);
    std::abort();
}

// In memory where there is such a place: a disk would take most of the time.
QString placeOfFiles()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/cibra-XXXXXX");
}

QStringList linesOf(const QString &path)
{
    TextReader reader(path);
    QStringList lines;
    while (!reader.atEnd())
        lines += reader.line();
    return lines;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fault("the disk is full");
}

// A character alone between two lines would join or part them.
bool hasStrayEnds(const QStringList &lines)
{
    for (const QString &line : lines)
        if (line.contains(u'\r') || line.contains(u'\n'))
            return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const QTemporaryDir folder(placeOfFiles());
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString path = folder.filePath("testo");
    write(path, bytes);

    const QStringList lines = linesOf(path);
    if (!hasStrayEnds(lines)) {
        TextWriter writer(path, TextEncoding::CodePage);
        for (const QString &line : lines)
            writer.line(line);
        writer.close();
        for (const QString &line : linesOf(path))
            if (!fitsWindows1252(line))
                fault("a code page file holds what the code page lacks");
        if (linesOf(path).size() != lines.size())
            fault("another number of lines");
    }
    if (fromWindows1252(toWindows1252(fromWindows1252(bytes))) != fromWindows1252(bytes))
        fault("the code page loses what it holds");

    write(path, bytes);
    try {
        CsvTable::read(path);
    } catch (const Failure &) {
        return 0;
    }
    return 0;
}
