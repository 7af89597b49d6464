// The program-wide state, made by Main and passed by reference.
#pragma once

#include "core/Schermate.h"
#include "platform/environment/Environment.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"

#include <QString>

#include <memory>

struct ModNetServer
{
    ModNetServer(Environment &environment, Schermate &screens) : mondo(environment), schermate(screens) {}

    Environment &mondo;
    Schermate &schermate;

    // The data archive, through which every statement of catalogue, planner and daily sheet goes; null until first
    // opened. After a reset it holds the connection that failed.
    std::unique_ptr<Connection> ConnessioneDati;
    // The system archive with its table Messaggi; null or closed where there is none. Nothing reports that.
    std::unique_ptr<Connection> ConnessioneSistema;
    // Shared by many routines, which re-create it before each use and never keep it across a user action.
    std::shared_ptr<Recordset> RsComune;

    QString PercorsoDbSistema;   // full path of the system archive, or empty
    QString PercorsoDbDati;      // full path of the data archive
    QString NomeDbDati;          // its file name with the extension
    QString CartellaDbDati;      // its folder
    QString RigaLetta;           // scratch buffer; means nothing between operations
    bool NetProc = false;        // never set to true
    bool ConnessioneDsn = false; // never set to true

    // The household, the four lines of ini\Anagrafica.txt; the targets stay strings.
    QString NomePrimaPersona;
    QString NomeSecondaPersona;
    QString KcalPrimaPersona;   // kcal a day
    QString KcalSecondaPersona; // kcal a day

    QString DataAvvio; // the day of the start, as text
    QString TestoAttesa1;
    QString TestoAttesa2;
    QString TestoAttesa3;

    QString PiattoSostituto;     // dish handed between the daily sheet and Sostituti
    QString NomeScelto;          // person picked in InserimentoKCal
    QString PercorsoDbReport;    // line 2 of INI\Report.ini, the archive of the reports
    bool MessaggioVisto = false; // the administrator's last notice, where that was a yes/no text
    int LivelloUtente = 0;       // never set
    bool ModoSistema = false;    // never set
    bool ErroreAVideo = false;   // the dialog "Errore Generico" is up
    bool CopiaMancata = false;   // a safety copy failed in this run, and the user has been told

    bool PuoAggiungere() const { return LivelloUtente >= 3; } // a record form offers new records
    bool PuoCancellare() const { return LivelloUtente >= 4; } // a record form offers to delete records

    // The open data connection; throws Failure(ConnectionClosed) where it was never opened.
    Connection &dati();
};

// Ends the program at once, from wherever it is called.
[[noreturn]] void TerminaProgramma();
