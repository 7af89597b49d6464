// The expansion without the planner's form.
#pragma once

#include "planner/EspandiCalendario.h"

class SenzaPianificatore : public FormPianificatore
{
public:
    void setCaption(const QString &) override {}
    void setBarraVisibile(bool) override {}
    void mnuCrea() override {}
    void ridisegna() override {}
};
