#include "Watchdog.h"

#include <cstdio>
#include <cstdlib>

Watchdog::Watchdog(std::chrono::milliseconds patience) : m_thread([this, patience] { watch(patience); }) {}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_done = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void Watchdog::alive(const QString &words)
{
    const std::lock_guard lock(m_mutex);
    m_last = std::chrono::steady_clock::now();
    m_words = words.toStdString();
}

void Watchdog::watch(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_mutex);
    while (!m_done) {
        if (std::chrono::steady_clock::now() - m_last > patience) {
            // The event loop stands still, so there is no other way out than this one.
            std::fprintf(stderr, "%s\n", m_words.c_str());
            std::fflush(nullptr);
            std::_Exit(1);
        }
        m_changed.wait_until(lock, m_last + patience + std::chrono::milliseconds(1));
    }
}
