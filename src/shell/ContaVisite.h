// The counter of visits in Cont.log: each change of the main window's size is one.
#pragma once

#include "platform/text/ProgramFolder.h"

// Counts one more, keeps the count in the file and gives it as text. A file without a number starts again at 1.
QString ContaVisita(const ProgramFolder &folder);
