// "Conferma" of the database dialog: keeps the chosen archive in GestioneRete.INI.
#pragma once

#include "core/ModNetServer.h"

enum class DopoConferma
{
    ChiudiDialogo,
    LasciaAperto
};

// `cartella` is the native folder on show, `file` the selected archive, empty where none is selected. Where one of the
// two ODBC marker files stands in INI it asks first how to connect. An old .mdb file is imported first, where the user
// wants that, and the new archive takes its place; else the dialog stays open.
DopoConferma ConfermaDatabase(ModNetServer &modulo, const QString &cartella, const QString &file);
