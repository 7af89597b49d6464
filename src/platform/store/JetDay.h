// Date literals of Jet statements.
#pragma once

#include <QString>
#include <QStringView>

// What stands between two # signs, month first (day first where the first number is above 12), as yyyy-mm-dd; a day
// already in that form stays. Empty where it is no day of the calendar.
QString storedDay(QStringView literal);
