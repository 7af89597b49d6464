// Puts an archive under another password, or under none.
#pragma once

#include <QString>

// Replaces the sound archive `path`, which opens with `vecchia`, by a copy that opens with `nuova` alone; either is
// empty for none. The copy is made beside it, opened again, compared with the original and only then put in its place;
// nobody else can open the archive meanwhile. Throws Failure, the original being as it was: where it does not open or
// is damaged, where another program has it open, where the copy cannot be written.
void cambiaPassword(const QString &path, const QString &vecchia, const QString &nuova);
