// Makes a program folder ready for a first start.
#pragma once

#include <QDate>
#include <QString>

// In `folder`, which is made where it is not there: the example archive Archivio/famiglia.db, NetServer.Mdb, and an
// INI\GestioneRete.INI that points to them. Each is made only where it is missing; where GestioneRete.INI is there
// already it decides, and no archive is made. `day` is the day on which the catalogue is said to be entered.
void preparaCartella(const QString &folder, QDate day);
