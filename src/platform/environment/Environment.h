// Everything outside the program that its operations reach: made once by the start, scripted in tests.
#pragma once

#include "platform/environment/Dado.h"
#include "platform/environment/Dialoghi.h"
#include "platform/environment/Orologio.h"
#include "platform/environment/Programmi.h"
#include "platform/environment/Schermo.h"
#include "platform/text/ProgramFolder.h"

struct Environment
{
    ProgramFolder folder;
    Dialoghi &dialoghi;
    Programmi &programmi;
    Orologio &orologio;
    Dado &dado;
    Schermo &schermo;
};
