// The command line of cibra-copione.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

struct Options
{
    QString folder;
    bool offscreen = false;
    QDate today;       // invalid where the real one counts
    int timeout = 120; // seconds for a handler at work
    QString script;    // empty for standard input

    QString scriptName() const { return script.isEmpty() ? QStringLiteral("stdin") : script; }
};

struct UsageError
{
    QString words;
};

// Throws UsageError. `hasDisplay` decides the screen where the command line leaves it open.
Options readOptions(const QStringList &arguments, bool hasDisplay);
QString usage();
