// The tables and columns that a schema script declares.
#pragma once

#include "platform/store/Value.h"

#include <QList>
#include <QString>
#include <QStringList>

struct ColonnaSchema
{
    QString nome;
    ColumnType tipo = ColumnType::Text;
    int ampiezza = 0;      // characters of a Text
    bool variante = false; // a Text column that takes numbers too, and keeps them as such
};

struct TabellaSchema
{
    QString nome;
    QList<ColonnaSchema> colonne;
    QString chiave; // the column whose value is the row's key, empty where there is none

    const ColonnaSchema *colonna(const QString &name) const; // whatever the case; null where there is none
};

struct SchemaArchivio
{
    QList<TabellaSchema> tabelle;
    QStringList indici;

    const TabellaSchema *tabella(const QString &name) const; // whatever the case; null where there is none
};

// Reads a script that is written like archive/schema.sql, a column a line. What looks otherwise is passed over; nothing
// is thrown.
SchemaArchivio leggiSchema(const QString &script);
// The script with the text column of that table made `characters` wide; as it was where it declares no such column.
QString conColonnaPiuLarga(const QString &script, const QString &table, const QString &column, int characters);
