// What a record set tells of one of its fields.
#pragma once

#include "platform/store/Value.h"

#include <QString>

struct FieldInfo
{
    QString name; // spelled as the table declares it
    ColumnType type = ColumnType::Text;
    int definedSize = 0; // characters of a text column, 0 where none is declared
};
