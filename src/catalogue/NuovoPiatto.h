// A new dish: its row in the table of dishes, and its links into the group of another dish.
#pragma once

#include "core/ModNetServer.h"

struct DatiNuovoPiatto
{
    QString titolo;
    QString tipo;
    QString categoria;
    QString sostituito; // the dish into whose group it goes
};

// Asks whether the dish is to be inserted.
bool ConfermaNuovoPiatto(ModNetServer &modulo, const DatiNuovoPiatto &dati);
// The row in Sostituisci, with calories 0 and no favourite. Throws Failure(Engine), for an apostrophe in a name too.
void InserisciNuovoPiatto(ModNetServer &modulo, const DatiNuovoPiatto &dati);
// Links in both directions with the dish `sostituito` and with each of its n alternatives: 2 + 2n pairs, none where it
// has no group.
void CollegaAlGruppo(ModNetServer &modulo, const DatiNuovoPiatto &dati);
// The same with the alternatives alone: 2n pairs.
void CollegaAlleAlternative(ModNetServer &modulo, const DatiNuovoPiatto &dati);
// Deletes one copy, the first, of every pair that is stored more than once, and says what it did. Pairs of different
// days are no doubles.
void CancellaDoppione(ModNetServer &modulo);
