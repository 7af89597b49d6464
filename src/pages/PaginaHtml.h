// The two commands that write the nutrition page to Documenti\Cibra.html, replacing what is there, and open it in the
// browser. Nothing in it depends on the archive. Without the folder Documenti they throw Failure(PathNotFound), where
// the file may not be written Failure(PathAccess), where no browser is found Failure(FileNotFound).
#pragma once

#include "core/ModNetServer.h"

void mnuHTML(ModNetServer &modulo);      // the whole page
void MnukcCalcolo(ModNetServer &modulo); // its short variant
