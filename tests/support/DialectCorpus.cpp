#include "support/DialectCorpus.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <stdexcept>

namespace {

QDir corpusFolder()
{
    return QDir(QStringLiteral(CIBRA_SOURCE_DIR "/tests/dialect"));
}

QStringList linesOf(const QString &file)
{
    QFile opened(corpusFolder().filePath(file));
    if (!opened.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + file.toStdString());
    return QString::fromUtf8(opened.readAll()).split(u'\n');
}

class FileReader
{
public:
    explicit FileReader(const QString &file) : m_file(file), m_lines(linesOf(file)) {}

    DialectFile read()
    {
        DialectFile result;
        result.name = m_file.section(u'.', 0, 0);
        for (; m_at < m_lines.size(); ++m_at) {
            const QString &line = m_lines[m_at];
            if (line.startsWith(QStringLiteral("@archive ")))
                result.schema = line.section(u' ', 1);
            else if (line.startsWith(QStringLiteral("-- [")))
                result.cases.push_back(readCase());
            else if (!line.isEmpty() && !line.startsWith(QStringLiteral("--")))
                fail("a case begins with -- [name]");
        }
        return result;
    }

private:
    [[noreturn]] void fail(const char *why) const
    {
        throw std::runtime_error(m_file.toStdString() + ":" + std::to_string(m_at + 1) + ": " + why);
    }

    const QString &next()
    {
        if (++m_at >= m_lines.size())
            fail("the file ends within a case");
        return m_lines[m_at];
    }

    DialectCase readCase()
    {
        DialectCase read;
        read.name = m_lines[m_at].section(u'[', 1).section(u']', 0, 0);
        read.statement = next();
        const QString &mark = next();
        if (mark.startsWith(QStringLiteral("!! "))) {
            read.expected = mark.sliced(3);
            return read;
        }
        if (!mark.startsWith(QStringLiteral("=> ")))
            fail("=> or !! stands behind a statement");
        read.mark = mark.sliced(3);
        read.expected = next();
        return read;
    }

    QString m_file;
    QStringList m_lines;
    qsizetype m_at = 0;
};

} // namespace

std::vector<DialectFile> readDialectFiles()
{
    std::vector<DialectFile> files;
    const QStringList names = corpusFolder().entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        files.push_back(FileReader(name).read());
    return files;
}

std::vector<DialectConstruct> readConstructs()
{
    static const QRegularExpression kColumns(QStringLiteral("\\s*\\|\\s*"));
    std::vector<DialectConstruct> constructs;
    const QStringList lines = linesOf(QStringLiteral("constructs.txt"));
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QStringList columns = line.split(kColumns);
        if (columns.size() != 4)
            throw std::runtime_error("four columns: " + line.toStdString());
        constructs.push_back({columns[0], columns[1], columns[2], columns[3]});
    }
    return constructs;
}
