// Programs of the desktop that this one starts. A start that finds no program throws Failure(FileNotFound).
#pragma once

#include <QString>

enum class ProgramKind { TextViewer, Page, Calculator, Mail, Files, Printer };

class Programmi
{
public:
    virtual ~Programmi() = default;
    virtual void start(ProgramKind kind, const QString &target) = 0;
};
