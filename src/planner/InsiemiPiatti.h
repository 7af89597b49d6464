// The ten record sets over Sostituisci, one a kind of dish, whose cursors give the menus their rotation. They live as
// long as the planner's form: membership and order stay as they were opened, whatever happens to the table.
#pragma once

#include "core/ModNetServer.h"

#include <memory>

struct InsiemiPiatti
{
    std::unique_ptr<Recordset> ColazioneRs;
    std::unique_ptr<Recordset> SpuntinoRs;
    std::unique_ptr<Recordset> CarneRs;
    std::unique_ptr<Recordset> PesceRs;
    std::unique_ptr<Recordset> PaninoRs;
    std::unique_ptr<Recordset> PastaRs;
    std::unique_ptr<Recordset> PiattoUnicoRs;
    std::unique_ptr<Recordset> ContornoRs;
    std::unique_ptr<Recordset> menuRs;
    std::unique_ptr<Recordset> PaneRs;

    // Opens all ten with every dish of their kind.
    void Apri(Connection &connection);
    // Clears Ordine and opens all but PaneRs anew: breakfasts and snacks whole, each other kind with its favourites, or
    // with all its dishes where it has no favourite. Nothing but Apri brings the whole lists back.
    void SoloPreferiti(Connection &connection);
};
