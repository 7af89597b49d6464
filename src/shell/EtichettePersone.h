// The two labels of the main window that name the household.
#pragma once

#include "core/ModNetServer.h"

struct EtichettePersone
{
    QString nomi;    // Label3
    QString calorie; // Label4
};

// Reads the household file into the globals and words the labels; dashes where there is no file. Throws
// Failure(InputPastEnd) for a file that is cut short.
EtichettePersone LeggiEtichettePersone(ModNetServer &modulo);
