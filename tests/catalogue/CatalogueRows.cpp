#include "catalogue/CatalogueRows.h"

#include "support/DialectCorpus.h"

#include <gtest/gtest.h>

void insertFoods(Connection &dati, const QStringList &rows)
{
    insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr, quantita, Totale1, quantita2, Totale2", rows);
}

void insertDishes(Connection &dati, const QStringList &rows)
{
    insertRows(dati, "Sostituisci", "Piatto, KCalOndira, KCalTesmo, tipo, Categoria", rows);
}

void insertPairs(Connection &dati, const QStringList &rows)
{
    insertRows(dati, "GruppoPiattiSostituiti", "alimento, sostituisci", rows);
}

QStringList pairs(Connection &dati)
{
    return rowsOf(dati, "Select alimento, sostituisci from GruppoPiattiSostituiti");
}

QString corpusStatement(const QString &file, const QString &name)
{
    for (const DialectFile &one : readDialectFiles())
        for (const DialectCase &entry : one.cases)
            if (one.name == file && entry.name == name)
                return entry.statement;
    ADD_FAILURE() << "no statement " << name.toStdString() << " in " << file.toStdString();
    return {};
}
