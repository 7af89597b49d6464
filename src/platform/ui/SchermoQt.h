// The screen of the running program.
#pragma once

#include "platform/environment/Schermo.h"

class SchermoQt : public Schermo
{
public:
    void setMousePointer(int pointer) override;
    void beep() override;
    bool breathe() override; // cheap: lets events through only every few hundredths of a second

    // Whether a handler at work is letting the window live right now: no other handler may start.
    static bool isBreathing();
};

// As long as one lives the busy pointer is gone: nobody is asked something by an hourglass.
class PointerPause
{
public:
    PointerPause();
    ~PointerPause();
    PointerPause(const PointerPause &) = delete;
    PointerPause &operator=(const PointerPause &) = delete;

private:
    bool m_wasBusy;
};
