// Blanks around a text.
#pragma once

#include <QString>

// Without the blanks at both ends, as Trim of a statement takes them off: tabs and other white space stay.
QString withoutBlanks(const QString &text);
