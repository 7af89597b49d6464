// What the engine reports, in words for the user.
#pragma once

#include "platform/Failure.h"

#include <QString>

struct sqlite3;

// Italian words for the engine's code; the engine's own words follow in brackets.
Failure engineFailure(int code, const QString &engineWords, const QString &statement = {});
// The same for the last error of the connection.
Failure engineFailure(sqlite3 *handle, int code, const QString &statement = {});
