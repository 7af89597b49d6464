// The error log in the folder Errori.
#pragma once

#include "core/ModNetServer.h"
#include "platform/Failure.h"

// One entry in Errori\ErrModNetServer.txt, and the error on the background screen. Never fails.
void ScriviLogErrore(ModNetServer &modulo, const QString &Procedura, const Failure &Errore);
// A form's own copy: one entry in Errori\Err<Form>.txt, whose procedure line holds the form's name and whose error line
// holds form, " * ", `handler` (a literal such as "Form_Load ") and the words. Never fails.
void ScriviLogErroreForm(ModNetServer &modulo, const QString &form, const QString &handler, const Failure &Errore);
// The tail of every handler with an error routine: the dialog "Errore Generico", then the form's log.
void RoutineErrore(ModNetServer &modulo, const QString &form, const QString &handler, const Failure &Errore);
