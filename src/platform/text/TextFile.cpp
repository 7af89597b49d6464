#include "platform/text/TextFile.h"

#include "platform/Failure.h"
#include "platform/text/CodePage.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

const QByteArray kByteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

// The bytes go out in one piece, so that a buffer in between would only copy them.
constexpr QIODevice::OpenMode kReplace = QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw file.exists()
            ? Failure(FailureNumber::PathAccess, QStringLiteral("Il file non può essere letto: ") + path)
            : Failure::usual(FailureNumber::FileNotFound, path);
    return file.readAll();
}

QString decoded(const QByteArray &bytes)
{
    if (bytes.startsWith(kByteOrderMark))
        return QString::fromUtf8(bytes.mid(kByteOrderMark.size()));
    return fromWindows1252(bytes);
}

Failure notWhole(const QString &path)
{
    return Failure(FailureNumber::PathAccess,
                   QStringLiteral("Il file non può essere scritto per intero (il disco è pieno?): ") + path);
}

void checkWritable(const QString &path)
{
    const QFileInfo info(path);
    if (!info.absoluteDir().exists())
        throw Failure::usual(FailureNumber::PathNotFound, info.absolutePath());
    const bool canWrite = info.exists() ? !info.isDir() && info.isWritable() : true;
    if (!canWrite)
        throw Failure::usual(FailureNumber::PathAccess, path);
}

} // namespace

TextWriter::TextWriter(const QString &path, TextEncoding encoding, Mode mode)
    : m_path(path), m_encoding(encoding), m_mode(mode)
{
    checkWritable(path);
    m_file.setFileName(path);
    if (mode == Mode::Output && encoding == TextEncoding::CodePage && !m_file.open(kReplace))
        throw Failure::usual(FailureNumber::PathAccess, path);
    m_open = true;
}

TextWriter::~TextWriter()
{
    try {
        close();
    } catch (const Failure &) {
        // Nobody is left to tell: who wants to know closes the writer.
    }
}

void TextWriter::line(const QString &text)
{
    m_text += text + QStringLiteral("\r\n");
}

void TextWriter::encodedLines(const QByteArray &lines)
{
    m_encodedLines += toWindows1252(m_text) + lines;
    m_text.clear();
}

void TextWriter::close()
{
    if (!m_open)
        return;
    m_open = false;
    if (m_mode == Mode::Append)
        append();
    else if (m_encoding == TextEncoding::CodePage)
        write(encoded());
    else
        replaceFile(encoded());
}

QByteArray TextWriter::encoded() const
{
    if (m_encoding == TextEncoding::CodePage)
        return m_text.isEmpty() ? m_encodedLines : m_encodedLines + toWindows1252(m_text);
    if (fitsWindows1252(m_text))
        return toWindows1252(m_text);
    return kByteOrderMark + m_text.toUtf8();
}

void TextWriter::append()
{
    const QByteArray old = QFileInfo::exists(m_path) ? contentOf(m_path) : QByteArray();
    const bool inCodePage =
        m_encoding == TextEncoding::CodePage || (!old.startsWith(kByteOrderMark) && fitsWindows1252(m_text));
    if (!inCodePage && !old.startsWith(kByteOrderMark)) {
        replaceFile(kByteOrderMark + (decoded(old) + m_text).toUtf8());
        return;
    }
    if (!m_file.open(QIODevice::Append))
        throw Failure::usual(FailureNumber::PathAccess, m_path);
    write(inCodePage ? toWindows1252(m_text) : m_text.toUtf8());
}

void TextWriter::replaceFile(const QByteArray &bytes) const
{
    QSaveFile file(m_path);
    file.setDirectWriteFallback(true); // a file that may be written in a folder that may not
    // The flush is checked for itself: a commit takes a file that could not be flushed for a complete one.
    if (!file.open(QIODevice::WriteOnly))
        throw Failure::usual(FailureNumber::PathAccess, m_path);
    if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        throw notWhole(m_path);
}

void TextWriter::write(const QByteArray &bytes)
{
    if (m_file.write(bytes) != bytes.size() || !m_file.flush())
        throw notWhole(m_path);
    m_file.close();
}

TextReader::TextReader(const QString &path) : m_path(path)
{
    const QString text = decoded(contentOf(path));
    if (text.isEmpty())
        return;
    m_lines = text.split(u'\n');
    for (QString &line : m_lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    if (text.endsWith(u'\n'))
        m_lines.removeLast();
}

bool TextReader::atEnd() const
{
    return m_next >= m_lines.size();
}

QString TextReader::line()
{
    if (atEnd())
        throw Failure::usual(FailureNumber::InputPastEnd, m_path);
    return m_lines[m_next++];
}
