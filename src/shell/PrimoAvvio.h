// The first start of an installed program, when there is no archive yet.
#pragma once

#include "platform/environment/Dialoghi.h"
#include "platform/text/ProgramFolder.h"

// Where the program folder has no INI\GestioneRete.INI: asks whether to begin with the example archive, and on Yes has
// `strumento`, the path of cibra-archivio, prepare the folder. Where that fails it says so. On No, and after a failure,
// the start goes on and asks for an archive by itself.
void OffriEsempio(const ProgramFolder &folder, Dialoghi &dialoghi, const QString &strumento);
