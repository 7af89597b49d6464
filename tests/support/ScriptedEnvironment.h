// Stand-ins for programs, clock, dice and screen.
#pragma once

#include "platform/environment/Dado.h"
#include "platform/environment/Orologio.h"
#include "platform/environment/Programmi.h"
#include "platform/environment/Schermo.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <vector>

// Keeps what would have been started: "TextViewer /path/to/file".
class RecordingProgrammi : public Programmi
{
public:
    QStringList started;
    bool nothingIsInstalled = false; // each start then fails, and is kept all the same

    void start(ProgramKind kind, const QString &target) override;
};

// Throws what the test wrote down; when that is used up, it goes on like DadoFisso, or fails where `strict`.
class ScriptedDado : public Dado
{
public:
    int thrown = 0;
    bool strict = false;

    void script(std::initializer_list<double> values);
    double next() override;

private:
    std::deque<double> m_values;
    DadoFisso m_fisso;
};

// A clock that a test sets.
class SetClock : public Orologio
{
public:
    QDateTime when;

    explicit SetClock(const QDateTime &start) : when(start) {}
    QDateTime now() const override { return when; }
};

// Counts what is done to the screen.
class RecordingSchermo : public Schermo
{
public:
    std::vector<int> pointers; // every pointer set, in order
    int beeps = 0;
    int breaths = 0;
    int escAtBreath = 0;            // Esc is reported at this breath (from 1) and at those after it; 0 never
    std::function<void()> onBreath; // what happens while the window repaints

    void setMousePointer(int pointer) override { pointers.push_back(pointer); }
    void beep() override { ++beeps; }
    bool breathe() override;
};
