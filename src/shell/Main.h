// The start of the program: folders, wait screen, archives, main window.
#pragma once

#include "core/ModNetServer.h"

// What Main shows of the shell's own forms; the database dialog it reaches through Schermate.
class SchermateDiAvvio
{
public:
    virtual ~SchermateDiAvvio() = default;
    virtual void mostraMessaggi() = 0; // the wait screen, without waiting; it reads the wait texts by itself
    virtual void scriviAttesa(const QString &label1, const QString &label2) = 0; // on the wait screen, at once
    virtual int valoreBarra() = 0;
    virtual int massimoBarra() = 0;
    virtual void impostaBarra(int value) = 0;
    virtual void chiudiMessaggi() = 0;
    virtual void mostraSfondo() = 0; // without waiting; it takes no clicks
    virtual void nascondiSfondo() = 0;
    virtual void mostraMenu() = 0; // modal: the whole run
};

// The bar's next value: 20 more where there is room for it.
int PassoBarra(int value, int maximum);

// Runs the program and ends it: leaves by ProgramEnd, or returns after a start that failed, which it has shown and
// logged.
void Main(ModNetServer &modulo, SchermateDiAvvio &schermate);
