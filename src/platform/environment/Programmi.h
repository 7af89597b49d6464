// Programs of the desktop that this one starts. A start that finds no program throws Failure(FileNotFound).
#pragma once

#include <QString>

enum class ProgramKind
{
    TextViewer,
    Page,
    Calculator,
    Mail,
    Files,
    Printer
};

// Printer: `target` is a picture file to be printed, through the system's print dialog; without one the dialog chooses
// the printer for later, and giving it up throws Failure(Cancelled).
class Programmi
{
public:
    virtual ~Programmi() = default;
    virtual void start(ProgramKind kind, const QString &target) = 0;
};
