// The print of a day as a page: the lines of the text print in a table.
#pragma once

#include "core/ModNetServer.h"

// Writes Documenti\<day without "/">.html, replacing an earlier one, and opens it in the browser. Names go into the
// page as they stand. Throws as StampaTesto does, leaving the page as far as it was written.
void StampaHtml(ModNetServer &modulo, const QString &DataGiorno);
