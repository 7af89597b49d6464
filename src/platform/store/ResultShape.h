// What the columns of a select are: names, types, and where a change of them goes.
#pragma once

#include "platform/store/FieldInfo.h"
#include "platform/store/JetTranslator.h"
#include "platform/store/Statement.h"
#include "platform/store/TableInfo.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

struct ResultShape
{
    std::vector<FieldInfo> fields;
    std::vector<int> tableColumns;          // of each field, -1 where it is an expression
    std::vector<bool> typeByValues;         // of each field: nothing is declared, its values decide
    bool repeatsColumns = false;            // one table column is in the result twice
    int columns = 0;                        // of the result, a hidden key included
    std::shared_ptr<const TableInfo> table; // null where the set is read-only

    bool updatable() const { return table != nullptr; }
    int keyCell() const { return columns - 1; } // of an updatable set
};

using TableLookup = std::function<std::shared_ptr<const TableInfo>(const QString &)>;

// Never null. `tableNamed` gives null for a table that is not there; what it throws goes through.
std::shared_ptr<const ResultShape> readShape(const Statement &statement, const Translation &translation,
                                             const TableLookup &tableNamed);
