// Runs a prepared select to its end and keeps what it gives.
#pragma once

#include "platform/store/Snapshot.h"
#include "platform/store/Statement.h"

// The statement has been stepped to its first row already; `anyRow` says whether it gave one. Throws Failure(Engine).
void readRows(Statement &statement, bool anyRow, int columns, Snapshot &snapshot, const QString &told);
