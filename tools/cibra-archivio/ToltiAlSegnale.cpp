#include "ToltiAlSegnale.h"

#include <QFile>

#include <array>
#include <csignal>
#include <utility>

#include <unistd.h>

namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

ToltiAlSegnale *s_first = nullptr;

// No signal comes while the list changes.
class Quiete
{
public:
    Quiete()
    {
        sigset_t blocked;
        sigemptyset(&blocked);
        for (const int number : kSignals)
            sigaddset(&blocked, number);
        pthread_sigmask(SIG_BLOCK, &blocked, &m_before);
    }
    ~Quiete() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    Quiete(const Quiete &) = delete;
    Quiete &operator=(const Quiete &) = delete;

private:
    sigset_t m_before;
};

void change(void (*from)(int), void (*to)(int))
{
    for (const int number : kSignals) {
        struct sigaction action;
        sigaction(number, nullptr, &action);
        if (action.sa_handler != from)
            continue;
        action = {};
        action.sa_handler = to;
        sigaction(number, &action, nullptr);
    }
}

} // namespace

// Calls nothing but what a signal may: the paths are ready made.
void togliTutti()
{
    for (const ToltiAlSegnale *files = s_first; files; files = files->m_next)
        for (const QByteArray &path : files->m_paths)
            unlink(path.constData());
}

namespace {

void alSegnale(int number)
{
    togliTutti();
    std::signal(number, SIG_DFL);
    raise(number); // comes once this handler has returned, and ends the process
}

} // namespace

ToltiAlSegnale::ToltiAlSegnale(const QStringList &paths)
{
    for (const QString &path : paths)
        m_paths.push_back(QFile::encodeName(path));
    const Quiete quiet;
    m_next = std::exchange(s_first, this);
    change(SIG_DFL, alSegnale);
}

ToltiAlSegnale::~ToltiAlSegnale()
{
    const Quiete quiet;
    for (ToltiAlSegnale **place = &s_first; *place; place = &(*place)->m_next)
        if (*place == this) {
            *place = m_next;
            break;
        }
    if (!s_first)
        change(alSegnale, SIG_DFL);
}
