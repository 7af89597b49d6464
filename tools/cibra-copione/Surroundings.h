// The world around the program under a script: programs are recorded and never started, beeps are counted.
#pragma once

#include "platform/environment/Programmi.h"
#include "platform/ui/SchermoQt.h"

#include <QJsonArray>

class RecordedProgrammi : public Programmi
{
public:
    void start(ProgramKind kind, const QString &target) override;
    QJsonArray take(); // [kind, target] of each, and forgets them

private:
    QJsonArray m_started;
};

class CountingSchermo : public SchermoQt
{
public:
    void beep() override { ++m_beeps; }
    int take(); // the number of beeps, and forgets them

private:
    int m_beeps = 0;
};
