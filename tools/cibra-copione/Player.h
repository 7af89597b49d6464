// Plays a script against the windows of a program that runs in the same event loop.
#pragma once

#include "Names.h"
#include "Script.h"
#include "Surroundings.h"
#include "Watchdog.h"

#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include <functional>
#include <map>

// The program as the script drives it.
struct Stage
{
    std::function<void()> run; // performs Main, returns when the program has ended
    std::function<void()> end; // ends the program from outside
    RecordedProgrammi *programs = nullptr;
    CountingSchermo *screen = nullptr;
};

struct PlayerSettings
{
    QString scriptName;           // as failures name it
    QString pictureFolder;        // where pictures go whose name is no whole path
    int waitForWindow = 10'000;   // ms for a window or control that is not there
    int waitForHandler = 120'000; // ms for a handler at work
};

class Player : public QObject
{
public:
    Player(std::vector<Command> script, Stage stage, PlayerSettings settings, QTextStream &out, QTextStream &err);

    int play(); // runs the event loop; the exit status

private:
    struct Verb;
    static const std::map<QString, Verb> &verbs();

    void turn();
    void sayAlive();
    bool isQuiet();
    void tryNext();
    void carryOut(const Command &command);
    void startProgram();
    void keyLater(const Command &command, int milliseconds, const QString &form, const QString &key);
    void fail(const Command &command, const QString &words);
    void failWithScreen(const Command &command, const QString &words);
    void finish(int status);
    void answer(const QString &line);

    std::vector<Command> m_script;
    Stage m_stage;
    PlayerSettings m_settings;
    QTextStream &m_out;
    QTextStream &m_err;
    WindowOrder m_windows;
    Watchdog m_watchdog;
    QTimer m_timer;
    std::size_t m_next = 0;      // the next command
    std::ptrdiff_t m_tried = -1; // the command whose first try `m_since` counts from
    QElapsedTimer m_since;
    int m_quietTurns = 0;
    int m_status = 0;
    bool m_started = false;
    bool m_running = false;
    bool m_finished = false;
};
