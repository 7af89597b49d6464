// The expressions between SELECT and FROM, as far as the type of a result column hangs on them.
#pragma once

#include <QString>
#include <QStringList>

class SelectHeads
{
public:
    explicit SelectHeads(const QStringList &items) : m_items(items) {}

    // Whether column `column` of a result of `columns` columns is an expression that begins with a call of `function`.
    bool isCallOf(int column, int columns, QStringView function) const;

private:
    QStringList m_items;
};

// Of one of the engine's own statements; without items where it is no select. Never throws.
SelectHeads selectHeads(const QString &statement);
