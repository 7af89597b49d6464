#include "platform/ui/FormHost.h"

#include <QDebug>

namespace {

// Keeps the list of running loops right, also where an exception leaves one.
class Entry
{
public:
    Entry(std::vector<QEventLoop *> &loops, QEventLoop &loop) : m_loops(loops) { m_loops.push_back(&loop); }
    ~Entry() { m_loops.pop_back(); }
    Entry(const Entry &) = delete;
    Entry &operator=(const Entry &) = delete;

private:
    std::vector<QEventLoop *> &m_loops;
};

} // namespace

void FormHost::guarded(const std::function<void()> &handler)
{
    if (m_ending)
        return;
    try {
        handler();
    } catch (const Failure &failure) {
        tell(failure);
    } catch (const ProgramEnd &) {
        end();
    } catch (const std::exception &other) {
        tell(Failure(FailureNumber::Engine, QString::fromUtf8(other.what())));
    }
}

void FormHost::tell(const Failure &failure)
{
    if (!report) {
        qCritical().noquote() << failure.words();
        return;
    }
    try {
        report(failure);
    } catch (const ProgramEnd &) {
        end();
    } catch (const std::exception &other) { // the report itself failed: there is nobody left to tell it to
        qCritical() << other.what();
    }
}

void FormHost::runLoop(QEventLoop &loop)
{
    if (m_ending)
        throw ProgramEnd();
    {
        const Entry entry(m_loops, loop);
        loop.exec();
    }
    if (m_ending)
        throw ProgramEnd();
}

void FormHost::end()
{
    m_ending = true;
    for (QEventLoop *loop : m_loops)
        loop->quit();
}
