// The separate archive of the reports, kept in INI\Report.ini.
#pragma once

#include "core/ModNetServer.h"

// The registered path, also where its file is gone; empty where there is none.
QString DatabaseReportRegistrato(const ModNetServer &modulo);
// Reads the registered path into PercorsoDbReport; where the file it names exists, asks whether to change it. True
// where a file is to be chosen.
bool DaScegliereDatabaseReport(ModNetServer &modulo);
// Keeps `path` as the archive of the reports and says so.
void RegistraDatabaseReport(ModNetServer &modulo, const QString &path);
