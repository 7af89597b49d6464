// Takes the apostrophes out of a record set: a name that holds one breaks statements that are joined from it.
#pragma once

#include "platform/store/Recordset.h"

class Connection;

// In every text of every row each "'" becomes a blank; ends on the first row. A set without rows stays as it is.
void ControllaCaratteri(Recordset &recordset, Connection &connessione);
