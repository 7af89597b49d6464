// What the engine is taught at each opening: the collation of the archive's texts, CDate, jet_first and jet_last.
#pragma once

struct sqlite3;

// Throws Failure(Engine).
void teachEngine(sqlite3 *handle);
