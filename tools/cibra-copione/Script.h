// A script as lines of commands: words and "double-quoted" texts with the escapes of JSON.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

struct Argument
{
    QString text;
    bool quoted = false;
};

struct Command
{
    int line = 0; // from 1
    QString name;
    std::vector<Argument> arguments;
    std::vector<QString> rests; // for each argument the rest of the line, from its beginning on
};

struct ScriptError
{
    int line = 0;
    QString words;
};

// The command of one line; none for a blank line or a remark. Throws ScriptError for a text that does not end.
std::optional<Command> parseLine(const QString &text, int line);
std::vector<Command> parseScript(const QString &text);
