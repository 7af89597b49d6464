// Dishes for tests: their foods, their classes, the pairs of their groups.
#pragma once

#include "support/TestWorld.h"

// Foods of dishes; each row "'Piatto', 'Alimento', KC100gr, quantita, Totale1, quantita2, Totale2".
void insertFoods(Connection &dati, const QStringList &rows);
// Dishes; each row "'Piatto', KCalOndira, KCalTesmo, 'tipo', 'Categoria'".
void insertDishes(Connection &dati, const QStringList &rows);
// Pairs of GruppoPiattiSostituiti; each row "'alimento', 'sostituisci'".
void insertPairs(Connection &dati, const QStringList &rows);
// The pairs, "alimento | sostituisci", in key order.
QStringList pairs(Connection &dati);
// A statement of the corpus in tests/dialect, letter by letter; fails the test where there is none.
QString corpusStatement(const QString &file, const QString &name);
