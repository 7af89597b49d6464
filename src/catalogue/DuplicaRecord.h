// Copies the current row of a record set into a new row, stored at once.
#pragma once

#include "core/ModNetServer.h"

// The new row gets the next key of `tabella`; empty and null fields are left out, all others are copied.
void DuplicaRecord(ModNetServer &modulo, Recordset &recordset, const QString &tabella);
