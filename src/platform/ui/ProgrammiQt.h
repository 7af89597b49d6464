// Programs by what the desktop offers.
#pragma once

#include "platform/environment/Programmi.h"
#include "platform/ui/StampanteQt.h"

class ProgrammiQt : public Programmi
{
public:
    void start(ProgramKind kind, const QString &target) override;

private:
    StampanteQt m_stampante;
};
