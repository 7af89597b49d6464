// The days that both prints are compared on; tests/golden holds their pages.
#pragma once

#include "support/TestWorld.h"

// The household of the golden pages, the clock at 09/03/2004 18:05:07, the folder Documenti, and the sheets of
//   09/03/2004  a full day: three snacks, several dishes, a meal in other capitals, a row of kind Menu
//   10/03/2004  a day without snacks, with names too long for their column
//   11/03/2004  five snacks and a dinner, with accents, signs of the page's own and one that the code page lacks
// and of no other day.
void setPrintDays(TestWorld &world);

QByteArray goldenFile(const QString &name);
