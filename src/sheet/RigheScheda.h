// Rows of SchedaPranzo by hand: a dish's foods copied into a meal, a row or a dish of a meal taken out.
#pragma once

#include "core/ModNetServer.h"

// The foods of a dish in name order. The name goes in as it stands: an apostrophe breaks the statement.
QString IstruzioneCibiDelPiatto(const QString &piatto);
// The texts without the blanks around it; null stays null.
Value SenzaBianchi(const Value &testo);

// Where rows of the sheet stand, all of them texts as SchedaPranzo keeps them.
struct PostoNellaScheda
{
    QString giorno;
    QString pasto; // PranzoCenaSpuntino
    QString piatto;
};

// Adds one row a food of `cibi`, an open set of rows of Piatti, from its first one. Throws what the store reports.
void AggiungiCibi(ModNetServer &modulo, Recordset &cibi, const PostoNellaScheda &posto);

// Asks, and deletes the row with the key `id` on yes; gives whether it did. `id` goes into the statement as it stands.
bool CancellaRecord(ModNetServer &modulo, const PostoNellaScheda &posto, const QString &alimento, const QString &id);
// Asks, and deletes on yes every row of that dish in that meal of that day, as often as the dish stands there.
bool CancellaGruppo(ModNetServer &modulo, const PostoNellaScheda &posto);
// The same without a question.
void CancellaGruppoSenzaConferma(ModNetServer &modulo, const PostoNellaScheda &posto);
