#include "Player.h"

#include "Boxes.h"
#include "Hands.h"
#include "platform/ui/Form.h"
#include "Properties.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QPixmap>

#include <algorithm>

namespace {

// Turns of the event loop in which nothing else was left to do before the next command is carried out. More than one,
// because what a turn does may leave something for the next.
constexpr int kQuietTurns = 4;
constexpr int kLookAgain = 15; // milliseconds between two looks for a window that is not there yet

void takePicture(const WindowOrder &windows, const QString &file, const QString &form)
{
    QWidget *window = nullptr;
    if (form.isEmpty()) {
        const auto shown = windows.shown();
        if (shown.empty())
            throw NotThere{QStringLiteral("no window is shown")};
        window = shown.front().widget;
    } else {
        window = findForm(form);
        if (!window->isVisible())
            throw NotThere{window->objectName() + QStringLiteral(" is not shown")};
    }
    if (!window->grab().save(file, "PNG"))
        throw Wrong{QStringLiteral("the picture cannot be written: ") + file};
}

void expectProperty(const QString &name, const QString &property, const QString &json)
{
    const QJsonValue expected = jsonValue(json);
    if (expected.isUndefined())
        throw Wrong{QStringLiteral("this is no JSON: ") + json};
    const QJsonValue actual = propertyOf(findTarget(name), property);
    if (actual != expected)
        throw Wrong{
            QStringLiteral("%1 %2 is %3, expected %4").arg(name, property, jsonText(actual), jsonText(expected))};
}

int number(const Command &command, std::size_t index)
{
    bool isNumber = false;
    const int value = command.arguments[index].text.toInt(&isNumber);
    if (!isNumber || command.arguments[index].quoted)
        throw Wrong{QStringLiteral("not a number: ") + command.arguments[index].text};
    return value;
}

QString text(const Command &command, std::size_t index)
{
    return index < command.arguments.size() ? command.arguments[index].text : QString();
}

bool onOrOff(const Command &command, std::size_t index)
{
    const QString word = text(command, index);
    if (word != QStringLiteral("on") && word != QStringLiteral("off"))
        throw Wrong{QStringLiteral("on or off, not ") + word};
    return word == QStringLiteral("on");
}

} // namespace

// What a line may say: how many arguments it takes, and what it does.
struct Player::Verb
{
    std::size_t least;
    std::size_t most;
    std::function<void(Player &, const Command &)> run;
};

const std::map<QString, Player::Verb> &Player::verbs()
{
    static const std::map<QString, Verb> all{
        {"start", {0, 0, [](Player &p, const Command &) { p.startProgram(); }}},
        {"forms", {0, 0, [](Player &p, const Command &) { p.answer(p.m_windows.describe()); }}},
        {"get",
         {1, 2,
          [](Player &p, const Command &c) { p.answer(jsonText(propertyOf(findTarget(text(c, 0)), text(c, 1)))); }}},
        {"expect", {3, 3, [](Player &, const Command &c) { expectProperty(text(c, 0), text(c, 1), c.rests[2]); }}},
        {"click", {1, 1, [](Player &, const Command &c) { clickOn(text(c, 0)); }}},
        {"dblclick", {1, 1, [](Player &, const Command &c) { doubleClickOn(text(c, 0)); }}},
        {"hover", {1, 1, [](Player &, const Command &c) { hoverOver(text(c, 0)); }}},
        {"type", {2, 2, [](Player &, const Command &c) { typeInto(text(c, 0), text(c, 1)); }}},
        {"leave", {1, 1, [](Player &, const Command &c) { leaveControl(text(c, 0)); }}},
        {"choose", {2, 2, [](Player &, const Command &c) { chooseItem(text(c, 0), text(c, 1)); }}},
        {"check", {2, 2, [](Player &, const Command &c) { setCheck(text(c, 0), onOrOff(c, 1)); }}},
        {"row", {2, 2, [](Player &, const Command &c) { goToRow(text(c, 0), number(c, 1)); }}},
        {"cell",
         {4, 4, [](Player &, const Command &c) { editCell(text(c, 0), number(c, 1), text(c, 2), text(c, 3)); }}},
        {"key", {2, 2, [](Player &, const Command &c) { pressKey(text(c, 0), text(c, 1)); }}},
        {"menu", {1, 1, [](Player &, const Command &c) { triggerEntry(text(c, 0)); }}},
        {"panel", {2, 2, [](Player &, const Command &c) { clickPanel(text(c, 0), number(c, 1)); }}},
        {"tab", {2, 2, [](Player &, const Command &c) { clickTab(text(c, 0), number(c, 1)); }}},
        {"later", {3, 3, [](Player &p, const Command &c) { p.keyLater(c, number(c, 0), text(c, 1), text(c, 2)); }}},
        {"resize", {3, 3, [](Player &, const Command &c) { resizeWindow(text(c, 0), number(c, 1), number(c, 2)); }}},
        {"close", {1, 1, [](Player &, const Command &c) { closeWindow(text(c, 0)); }}},
        {"msg", {0, 0, [](Player &p, const Command &) { p.answer(describeBox(p.m_windows)); }}},
        {"answer", {1, 1, [](Player &p, const Command &c) { answerBox(p.m_windows, c.arguments[0]); }}},
        {"input", {1, 1, [](Player &p, const Command &c) { answerInput(p.m_windows, text(c, 0)); }}},
        {"input-cancel", {0, 0, [](Player &p, const Command &) { cancelInput(p.m_windows); }}},
        {"launches", {0, 0, [](Player &p, const Command &) { p.answer(jsonText(p.m_stage.programs->take())); }}},
        {"beeps", {0, 0, [](Player &p, const Command &) { p.answer(QString::number(p.m_stage.screen->take())); }}},
        {"shot",
         {1, 2,
          [](Player &p, const Command &c) {
              takePicture(p.m_windows, QDir(p.m_settings.pictureFolder).filePath(text(c, 0)), text(c, 1));
          }}},
        {"ended",
         {0, 0,
          [](Player &p, const Command &) {
              p.answer(p.m_started && !p.m_running ? QStringLiteral("true") : QStringLiteral("false"));
          }}},
        {"quit", {0, 0, [](Player &p, const Command &) { p.finish(0); }}},
    };
    return all;
}

Player::Player(std::vector<Command> script, Stage stage, PlayerSettings settings, QTextStream &out, QTextStream &err)
    : m_script(std::move(script)), m_stage(std::move(stage)), m_settings(std::move(settings)), m_out(out), m_err(err),
      m_watchdog(std::chrono::milliseconds(m_settings.waitForHandler))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { turn(); });
}

int Player::play()
{
    QApplication::setQuitOnLastWindowClosed(false);
    m_timer.start(0);
    QApplication::exec();
    return m_status;
}

// One look at the event loop, at whatever depth it runs: it comes again by itself, also while a command is under way
// whose handler waits in a loop of its own.
void Player::turn()
{
    if (m_finished)
        return;
    if (SchermoQt::isBreathing()) { // a handler at work lets the window live: its time is not ours
        m_timer.start(kLookAgain);
        return;
    }
    sayAlive();
    m_timer.start(0);
    if (isQuiet())
        tryNext();
}

// The event loop runs; if this is the last sign of it, the command before the next one keeps it from running.
void Player::sayAlive()
{
    const int line = m_script.empty() ? 0 : m_script[m_next > 0 ? m_next - 1 : 0].line;
    m_watchdog.alive(QStringLiteral("%1:%2: a handler was at work for more than %3 s; on screen: %4")
                         .arg(m_settings.scriptName)
                         .arg(line)
                         .arg(m_settings.waitForHandler / 1000.0)
                         .arg(m_windows.describe()));
}

// Whether the loop has had nothing else to do for some turns.
bool Player::isQuiet()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool resizing = std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
        const auto *form = qobject_cast<const Form *>(window);
        return form && form->isVisible() && form->isResizePending();
    });
    m_quietTurns = resizing ? 0 : m_quietTurns + 1;
    return m_quietTurns > kQuietTurns;
}

void Player::tryNext()
{
    m_quietTurns = 0;
    if (m_next == m_script.size()) {
        finish(0);
        return;
    }
    const std::size_t index = m_next++; // what the command sets off may play on before it returns
    sayAlive();
    const Command &command = m_script[index];
    if (m_tried != std::ptrdiff_t(index)) {
        m_tried = std::ptrdiff_t(index);
        m_since.start();
    }
    try {
        carryOut(command);
    } catch (const Wrong &wrong) {
        fail(command, wrong.words);
    } catch (const NotThere &missing) {
        const bool programEnded = m_started && !m_running;
        if (programEnded || m_since.elapsed() >= m_settings.waitForWindow) {
            failWithScreen(command,
                           missing.words + (programEnded ? QStringLiteral(" (the program has ended)") : QString()));
            return;
        }
        m_next = index;
        m_timer.start(kLookAgain);
    }
}

void Player::carryOut(const Command &command)
{
    const auto entry = verbs().find(command.name);
    if (entry == verbs().end())
        throw Wrong{QStringLiteral("there is no command ") + command.name};
    const std::size_t given = command.arguments.size();
    if (given < entry->second.least || given > entry->second.most)
        throw Wrong{QStringLiteral("%1 takes other arguments").arg(command.name)};
    entry->second.run(*this, command);
}

void Player::startProgram()
{
    if (m_started)
        throw Wrong{QStringLiteral("the program has been started already")};
    m_started = true;
    m_running = true;
    try {
        m_stage.run();
    } catch (const std::exception &failure) { // the program's start failed; it is over
        m_err << m_settings.scriptName << ": the program ended by a failure: " << failure.what() << '\n';
        m_status = 1;
        m_finished = true;
    }
    m_running = false;
    if (m_finished)
        QApplication::exit(m_status);
}

void Player::keyLater(const Command &command, int milliseconds, const QString &form, const QString &key)
{
    const int code = keyNamed(key);
    QTimer::singleShot(milliseconds, this, [this, &command, form, code] {
        if (m_finished)
            return;
        try {
            QWidget *const window = findForm(form);
            if (!window->isVisible())
                throw NotThere{form + QStringLiteral(" is not shown")};
            requireUnblocked(window);
            sendKey(window, code);
        } catch (const NotThere &missing) {
            failWithScreen(command, missing.words);
        } catch (const Wrong &wrong) {
            fail(command, wrong.words);
        }
    });
}

void Player::failWithScreen(const Command &command, const QString &words)
{
    fail(command, words + QStringLiteral("; on screen: ") + m_windows.describe());
}

void Player::fail(const Command &command, const QString &words)
{
    m_err << m_settings.scriptName << ':' << command.line << ": " << words << '\n';
    m_err.flush();
    finish(1);
}

void Player::finish(int status)
{
    m_finished = true;
    m_status = status;
    if (m_running)
        m_stage.end(); // startProgram leaves the event loop once Main is back
    else
        QApplication::exit(status);
}

void Player::answer(const QString &line)
{
    m_out << line << '\n';
    m_out.flush();
}
