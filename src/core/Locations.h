// Which archives the program opens: INI\GestioneRete.INI, and the two connections.
#pragma once

#include "core/ModNetServer.h"

// The file, in the program folder.
inline const QString kGestioneRete = QStringLiteral("\\INI\\GestioneRete.INI");
// What the user is asked for an archive with a password: prompt and title.
inline const QString kDomandaPassword = QStringLiteral("Inserisci la password per accedere al database");

// Reads GestioneRete.INI into the four location globals, showing the dialog until a data archive is found or the user
// gives up; then it says so and throws ProgramEnd.
void LeggiPercorsiDb(ModNetServer &modulo);
// Opens both connections from the location globals, the second as ApriDbDati does. Throws ProgramEnd, and
// Failure(PathAccess) where the folder INI cannot be made; an archive that does not open is no failure.
void ApriConnessioni(ModNetServer &modulo);
// The native path of an archive; one without a folder lies in the program folder, which is the current one.
QString PercorsoNativo(const ModNetServer &modulo, const QString &percorso);
// Opens ConnessioneSistema; a path with doubled backslashes is mended and tried again, other failures are ignored.
void ApriDbSistema(ModNetServer &modulo, const QString &Percorso);
// Opens ConnessioneDati where it is null. Asks for the password of an encrypted archive, and throws ProgramEnd where
// it is not the right one. For a damaged archive it resets the locations, shows the dialog and opens what was chosen.
void ApriDbDati(ModNetServer &modulo, const QString &Percorso);
// Makes the folder INI with SDIForm.ini where it is not there. Throws Failure(PathAccess).
void AssicuraCartellaIni(ModNetServer &modulo);
void AssicuraCartellaIni(const ProgramFolder &folder);
// Writes GestioneRete.INI: the native folder, "\" and the file name; line 2 stays empty while NetProc is false.
// Throws Failure(PathNotFound or PathAccess) where it cannot be written.
void ScriviGestioneRete(ModNetServer &modulo, const QString &folder, const QString &file);
// The same for a program that is not running: in the program folder `programma`, `sistema` being line 2.
void ScriviGestioneRete(const ProgramFolder &programma, const QString &sistema, const QString &folder,
                        const QString &file);
