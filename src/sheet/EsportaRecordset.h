// The sheet's list written to a text that a spreadsheet can take in.
#pragma once

#include "core/ModNetServer.h"

// Asks for the format where `elenco` has rows, and exports what `istruzione` gives. The text goes to
// InteroRecordSet.txt in the program folder, by way of Testo.txt, which is deleted again; the spreadsheet's branch only
// names the statement in the archive, takes the name away again and reports. The files that the reports and the viewer
// name are others than the one written. Throws what files and store report; Testo.txt may then be left.
void MnuFileTesto(ModNetServer &modulo, const Recordset &elenco, const QString &istruzione);
