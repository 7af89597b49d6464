// Texts of the user's own where the toolkit would read marks in them: an "&" is an access key on a button, a "<b>" is
// markup on a label or in a tool tip.
#pragma once

#include <QString>

namespace Scritte {
// The text as the caption of a button, or of a label that leads to a box.
QString senzaTasto(QString text);
// A caption as it is read on the screen: the reverse, and access keys are left as they stand.
QString comeSiLegge(QString caption);
// The text as a tool tip.
QString suggerimento(const QString &text);
} // namespace Scritte
