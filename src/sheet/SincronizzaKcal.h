// Balancing: moves the portions of one day in steps of 10 until its calories meet a person's daily target.
#pragma once

#include "core/ModNetServer.h"

// Balances the rows of SchedaPranzo whose dataInserimento is `DataGiorno`, as that text stands in the archive, for the
// persons asked for, and advances the planner's bar by one step where the day has rows. Portions are in grams, totals
// and targets in kcal; a row takes part while its portion is above 20.
//
// The day is read once into RsComune, which stays open and shows the walked rows; each changed row is written once, at
// the end or when a failure ends the walk. The mouse pointer stays busy: setting it back is the caller's job.
//
// Throws Failure: a target that is no number (TypeMismatch, only once a walk needs it), a row to be moved whose
// KC100gr is null (InvalidNull), and whatever the store reports.
void SincronizzaKcal(ModNetServer &modulo, const QString &DataGiorno, bool PrimaPersona, bool SecondaPersona);
