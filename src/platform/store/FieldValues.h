// Values on their way into a field.
#pragma once

#include "platform/store/Snapshot.h"
#include "platform/store/Value.h"

// The value as a column of that type takes it. Throws TypeMismatch for a text that is no number or no day.
Value convertedFor(ColumnType type, const Value &value);
// The value as the store keeps it; its text lives in `texts`.
Cell storedCell(const Value &value, Snapshot &texts);
