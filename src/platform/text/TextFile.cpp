#include "platform/text/TextFile.h"

#include "platform/Failure.h"
#include "platform/text/CodePage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

const QByteArray kByteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

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
    if (mode == Mode::Output && encoding == TextEncoding::CodePage)
        writeTo({}, false);
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

void TextWriter::text(const QString &lines)
{
    m_text += lines;
}

void TextWriter::close()
{
    if (!m_open)
        return;
    m_open = false;
    if (m_mode == Mode::Append)
        append();
    else if (m_encoding == TextEncoding::CodePage)
        writeTo(encoded(), false);
    else
        replaceFile(encoded());
}

QByteArray TextWriter::encoded() const
{
    if (m_encoding == TextEncoding::CodePage || fitsWindows1252(m_text))
        return toWindows1252(m_text);
    return kByteOrderMark + m_text.toUtf8();
}

void TextWriter::append() const
{
    const QByteArray old = QFileInfo::exists(m_path) ? contentOf(m_path) : QByteArray();
    if (m_encoding == TextEncoding::CodePage || (!old.startsWith(kByteOrderMark) && fitsWindows1252(m_text)))
        writeTo(toWindows1252(m_text), true);
    else if (old.startsWith(kByteOrderMark))
        writeTo(m_text.toUtf8(), true);
    else
        replaceFile(kByteOrderMark + (decoded(old) + m_text).toUtf8());
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

void TextWriter::writeTo(const QByteArray &bytes, bool append) const
{
    QFile file(m_path);
    const QIODevice::OpenMode how = append ? QIODevice::Append : QIODevice::WriteOnly | QIODevice::Truncate;
    if (!file.open(how))
        throw Failure::usual(FailureNumber::PathAccess, m_path);
    if (file.write(bytes) != bytes.size() || !file.flush())
        throw notWhole(m_path);
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
