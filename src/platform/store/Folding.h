// How texts of an archive compare: without regard to case, letters with an accent right beside the plain ones.
#pragma once

#include <QByteArrayView>
#include <QString>

// The letter without its case; accents stay ("À" gives "à").
char32_t foldedLetter(char32_t letter);

// Below, equal or above 0. Two texts are equal where they differ in nothing but case. Order: letters without accents
// decide, and where these agree the accents do. On texts of plain ASCII it is the order of the engine's own NOCASE.
int compareFolded(QByteArrayView left, QByteArrayView right);
int compareFolded(const QString &left, const QString &right);

// Whether `text` has the form `pattern`: % and * stand for any run of characters, _ and ? for one; case does not
// matter.
bool matchesPattern(const QString &text, const QString &pattern);
