// The reading of a Jet file through libmdb. It runs in a process of its own, because on a damaged file the library may
// crash, loop or stop early without a word.
#pragma once

#include <QString>

#include <cstdio>

// Writes the content of the file to `out` as the stream of FlussoMdb.h. What the library leaves unsaid is checked
// against the counts and lengths of the file; a damage ends the stream with a line GUASTO. Never throws.
void leggiMdb(const QString &path, std::FILE *out);

// The whole work of the reading process: its output belongs to the stream alone, what the library says is dropped.
// Never returns.
[[noreturn]] void processoLettore(const QString &path);
