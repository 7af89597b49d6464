// What stands in the generation panel when its button is pressed.
#pragma once

#include <QString>

#include <array>

// Texts stay texts: a frequency that nothing selects may hold anything.
struct SceltaMenu
{
    QString Text1;                // first day
    QString Text2;                // last day, inclusive
    std::array<bool, 13> Check{}; // Check1 to Check12, each under its own number
    std::array<QString, 10> Freq; // days of each seven
};
