#include "Script.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

// One past the closing quote of the text that begins at `from`; -1 where there is none.
qsizetype endOfText(const QString &line, qsizetype from)
{
    for (qsizetype i = from + 1; i < line.size(); ++i) {
        if (line[i] == '\\')
            ++i;
        else if (line[i] == '"')
            return i + 1;
    }
    return -1;
}

qsizetype endOfWord(const QString &line, qsizetype from)
{
    qsizetype i = from;
    while (i < line.size() && !line[i].isSpace())
        ++i;
    return i;
}

QString unescaped(const QString &text, int line)
{
    const QJsonDocument document = QJsonDocument::fromJson('[' + text.toUtf8() + ']');
    if (!document.isArray() || document.array().size() != 1)
        throw ScriptError{line, QStringLiteral("not a text: ") + text};
    return document.array().first().toString();
}

} // namespace

std::optional<Command> parseLine(const QString &text, int line)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith('#'))
        return std::nullopt;

    Command command;
    command.line = line;
    qsizetype at = endOfWord(trimmed, 0);
    command.name = trimmed.left(at);
    while (true) {
        while (at < trimmed.size() && trimmed[at].isSpace())
            ++at;
        if (at == trimmed.size())
            return command;
        command.rests.push_back(trimmed.mid(at));
        const bool isJson = command.name.compare("expect", Qt::CaseInsensitive) == 0 && command.arguments.size() == 2;
        if (isJson && (trimmed[at] == '[' || trimmed[at] == '{')) { // to the end of the line
            command.arguments.push_back({trimmed.mid(at), false});
            return command;
        }
        const bool quoted = trimmed[at] == '"';
        qsizetype end = quoted ? endOfText(trimmed, at) : endOfWord(trimmed, at);
        if (end < 0)
            throw ScriptError{line, QStringLiteral("a text without its closing quote")};
        if (quoted && end < trimmed.size() && !trimmed[end].isSpace())
            throw ScriptError{line, QStringLiteral("a blank is missing behind a text")};
        const QString piece = trimmed.mid(at, end - at);
        command.arguments.push_back({quoted ? unescaped(piece, line) : piece, quoted});
        at = end;
    }
}

std::vector<Command> parseScript(const QString &text)
{
    std::vector<Command> commands;
    const QStringList lines = text.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (auto command = parseLine(lines[i], int(i) + 1))
            commands.push_back(std::move(*command));
    }
    return commands;
}
