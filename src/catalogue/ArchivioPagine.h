// The saved pages of the folder Documenti.
#pragma once

#include "core/ModNetServer.h"

// The folder of the saved pages, native and absolute.
QString CartellaDocumenti(const ModNetServer &modulo);
// Opens one file of `cartella` with the program that the desktop has for it. Throws Failure(FileNotFound).
void ApriPagina(ModNetServer &modulo, const QString &cartella, const QString &file);
