// What a dish is made of: its foods, and the commands that change them.
#pragma once

#include "core/ModNetServer.h"

#include <optional>

// The names of all dishes that have foods, each once.
QString IstruzioneNomiPiatti();
// The foods used in dishes with their calories, each pair once.
QString IstruzioneAlimenti();
// The foods of a dish by name; of all dishes where `piatto` is empty.
QString IstruzioneComposizione(const QString &piatto);

// One entry of the list of foods, "Pasta /Kcal 350".
QString VoceAlimento(const QString &alimento, const QString &kcal);
QStringList VociAlimenti(Connection &dati);

struct AlimentoScelto
{
    QString nome; // with the blank before the "/", as the list spells it
    QString kcal; // per 100 g, behind a blank
};
// Food and calories of an entry; nothing where the text holds no "/".
std::optional<AlimentoScelto> ScegliAlimento(const QString &voce);

// A daily target as a box of a number shows it: 1.500 is 1500. A text that is no number stays as it is.
QString LivelloNominale(const QString &traguardo);

// The dish's kind and category in one line; nothing where the table of dishes does not have it.
std::optional<QString> ClassificazionePiatto(Connection &dati, const QString &piatto);

// Whether a portion may be stored: neither blank nor 0. Says so, with the person's name, where it may not.
bool QuantitaValida(ModNetServer &modulo, const QString &quantita, const QString &persona);
// Whether the food is to be saved: asks only where `chiedi`.
bool ConfermaSalvataggio(ModNetServer &modulo, bool chiedi, const QString &alimento);
// Writes the pending row of `righe` and lets the database compute its two totals.
void SalvaAlimento(ModNetServer &modulo, Recordset &righe);

// Asks, and deletes the current row of `righe`, whose neighbour becomes current. Gives whether it was deleted.
bool CancellaAlimento(ModNetServer &modulo, Recordset &righe, const QString &alimento, const QString &piatto);
// Asks, and deletes the dish: its foods among `righe`, its class, its pairs in both directions. Foods of other dishes
// that `righe` holds stay; so do all, where the dish has no name. Gives whether it was confirmed.
bool CancellaPiatto(ModNetServer &modulo, Recordset &righe, const QString &piatto);

// Whether a food is saved only after a question: the presence of the file conferma beside the program.
bool ConfermaInserimento(const ModNetServer &modulo);
// Makes the marker, a file of one empty line, or deletes it where it is there. Throws Failure(PathAccess).
void SalvaConfermaInserimento(const ModNetServer &modulo, bool attiva);
