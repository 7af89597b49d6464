// Text files of the program: lines end in CR LF, windows-1252.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

enum class TextEncoding
{
    Settings, // windows-1252, or UTF-8 with a byte order mark where a character does not fit
    CodePage, // always windows-1252, '?' for what does not fit: prints and pages
};

// Collects lines and writes the file in one go, at close or at the latest when it is destroyed (also by an exception:
// what was printed so far is then in the file). The constructor throws Failure(PathNotFound or PathAccess) where the
// file cannot be written.
//
// A settings file is replaced only by a complete new one, so that a full disk leaves the old one as it was. A code page
// file is emptied by the constructor and shows afterwards how far its writing came.
class TextWriter
{
public:
    enum class Mode
    {
        Output,
        Append
    };
    explicit TextWriter(const QString &path, TextEncoding encoding = TextEncoding::Settings, Mode mode = Mode::Output);
    ~TextWriter();
    TextWriter(const TextWriter &) = delete;
    TextWriter &operator=(const TextWriter &) = delete;

    void line(const QString &text); // and CR LF
    // Into a code page file: lines that are in the code page already, line ends and all.
    void encodedLines(const QByteArray &lines);
    void close(); // throws Failure(PathAccess) where the disk is full; a second close does nothing

private:
    QByteArray encoded() const;
    void replaceFile(const QByteArray &bytes) const;
    void write(const QByteArray &bytes); // to the open file
    void append();

    QString m_path;
    QFile m_file; // open from the start where it is emptied at the start
    TextEncoding m_encoding;
    Mode m_mode;
    QString m_text;
    QByteArray m_encodedLines; // stand before m_text
    bool m_open = false;
};

// Reads a text file whole: CR LF or LF, windows-1252 or UTF-8 with a byte order mark. A last line needs no line end.
class TextReader
{
public:
    explicit TextReader(const QString &path); // throws Failure(FileNotFound or PathAccess)
    bool atEnd() const;
    QString line(); // throws Failure(InputPastEnd)

private:
    QString m_path;
    QStringList m_lines;
    qsizetype m_next = 0;
};
