// The maintenance commands of the program, run on an archive from the command line.
#pragma once

#include <QString>

// False where there is no such command. Texts are exchanged, and the household is read, in the program folder that the
// archive belongs to: the nearest one upwards with an INI\GestioneRete.INI, else the archive's own. Asks for the
// password of a protected archive. Throws Failure.
bool manutenzione(const QString &comando, const QString &archivio);
