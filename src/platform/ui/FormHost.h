// What every form of the program shares: the one guard around handlers, and the end of the program.
#pragma once

#include "platform/Failure.h"

#include <QEventLoop>

#include <functional>
#include <vector>

class FormHost
{
public:
    // Shows and logs a failure that no handler caught; the shell sets it.
    std::function<void(const Failure &)> report;

    // Runs a handler. A Failure goes to `report` and the program lives on; ProgramEnd ends every modal loop. Nothing is
    // ever thrown to the caller, which is as a rule the event loop. Once the program is ending nothing runs any more.
    void guarded(const std::function<void()> &handler);
    // Runs `loop` until it is left; throws ProgramEnd where the program was told to end meanwhile or before.
    void runLoop(QEventLoop &loop);
    bool ending() const { return m_ending; }
    void end(); // leaves every modal loop; the innermost runLoop throws ProgramEnd

private:
    void tell(const Failure &failure);

    std::vector<QEventLoop *> m_loops;
    bool m_ending = false;
};
