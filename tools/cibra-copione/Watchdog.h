// Ends the process where a handler keeps the event loop from running for too long.
#pragma once

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

class Watchdog
{
public:
    explicit Watchdog(std::chrono::milliseconds patience);
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    // The event loop lives; `words` is what to say if that was the last sign of it.
    void alive(const QString &words);

private:
    void watch(std::chrono::milliseconds patience);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::chrono::steady_clock::time_point m_last = std::chrono::steady_clock::now();
    std::string m_words;
    bool m_done = false;
    std::thread m_thread;
};
