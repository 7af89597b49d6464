// Text files of the program: lines end in CR LF, windows-1252.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

enum class TextEncoding {
    Settings, // windows-1252, or UTF-8 with a byte order mark where a character does not fit
    CodePage, // always windows-1252, '?' for what does not fit: prints and pages
};

// Collects lines and writes the file in one go. The file is opened (and so replaced) by the constructor, which throws
// Failure(PathNotFound or PathAccess); what was printed so far is in the file also when the writer is destroyed by an
// exception.
class TextWriter
{
public:
    enum class Mode { Output, Append };
    explicit TextWriter(const QString &path, TextEncoding encoding = TextEncoding::Settings, Mode mode = Mode::Output);
    ~TextWriter();
    TextWriter(const TextWriter &) = delete;
    TextWriter &operator=(const TextWriter &) = delete;

    void line(const QString &text); // and CR LF
    void close();                   // throws Failure(PathAccess) where the disk is full

private:
    QString m_path;
    TextEncoding m_encoding;
    Mode m_mode;
    QString m_text;
    bool m_open = false;
};

// Reads a text file whole: CR LF or LF, windows-1252 or UTF-8 with a byte order mark.
class TextReader
{
public:
    explicit TextReader(const QString &path); // throws Failure(FileNotFound)
    bool atEnd() const;
    QString line(); // throws Failure(InputPastEnd)

private:
    QStringList m_lines;
    qsizetype m_next = 0;
};
