// The screen of the running program.
#pragma once

#include "platform/environment/Schermo.h"

class SchermoQt : public Schermo
{
public:
    void setMousePointer(int pointer) override;
    void beep() override;
    bool breathe() override;
};
