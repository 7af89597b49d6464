// The whole program: wires forms, logic and the world outside, and runs Main.
#pragma once

#include "platform/environment/Dado.h"
#include "platform/environment/Orologio.h"
#include "platform/environment/Programmi.h"
#include "platform/environment/Schermo.h"
#include "platform/text/ProgramFolder.h"

#include <memory>

class Program
{
public:
    // The program's name: title of message boxes that have none of their own.
    static QString name();

    // Works on the program folder `folder`. A QApplication must live longer than this object; the four others too.
    Program(const ProgramFolder &folder, Programmi &programmi, Orologio &orologio, Dado &dado, Schermo &schermo);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    void run();         // performs Main; returns when the program has ended
    bool ended() const; // whether run has returned
    void end();         // leaves every window, so that run returns; for whoever drives the program from outside

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};
