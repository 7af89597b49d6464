// The expansion: the rows of Menu in a range become daily sheets, one row a food of a dish.
#pragma once

#include "core/ModNetServer.h"

// What the expansion does to the planner's form.
class FormPianificatore
{
public:
    virtual ~FormPianificatore() = default;
    virtual void setCaption(const QString &caption) = 0;
    virtual void setBarraVisibile(bool visible) = 0; // Label5 and Picture1
    virtual void mnuCrea() = 0;                      // shows the generation panel
    virtual void ridisegna() = 0;                    // called after each day; no event of the user may run in it
};

struct SceltaEspansione
{
    QString Text3;        // first day
    QString Text4;        // last day, inclusive
    bool Check12 = false; // balance each day as soon as it is written
};

// Asks, deletes the sheets of the range, hand-made changes included, and writes them anew from Menu and Piatti. The
// caption and the bar of Schermate::barra tell how far it is. A failure leaves the days and slots written so far, and
// caption and bar as they then stand.
void mnuGenera(ModNetServer &modulo, const SceltaEspansione &scelta, FormPianificatore &form);
