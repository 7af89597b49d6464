// The small routines that several forms call.
#pragma once

#include "core/ModNetServer.h"

// Exactly `Larghezza` characters: cut, or padded with blanks.
QString Allinea(const QString &Testo, int Larghezza);
// The operating system's folder: what SystemRoot of the environment says, else /usr.
QString CartellaWindows();
// Position of the first "'" from 1, 0 where there is none.
int PosizioneApice(const QString &Testo);
// The next key of a table; an empty table throws Failure(InvalidNull).
qint64 NuovoId(ModNetServer &modulo, const QString &Tabella);
// Vowels followed by an apostrophe become accented letters, any other apostrophe the typographic one.
QString Accenta(const QString &Testo);
// Whether every character is a digit, "." or ","; true for an empty text.
bool SoloNumeri(const QString &Testo);
// Opens TESTI\<Nome>.txt, the notes file of a form, in the text viewer; makes it where it is missing. Throws
// Failure(PathAccess) where it cannot be made, Failure(FileNotFound) where there is no viewer.
void SegnalaProblemi(ModNetServer &modulo, const QString &Nome);
// Keeps a dated list of the form's source file where one stands beside the program; else does nothing. Throws
// Failure(PathAccess) where the list cannot be written.
void RegistraModifica(ModNetServer &modulo, const QString &File);
