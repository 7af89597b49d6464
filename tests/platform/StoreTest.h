// A small archive of its own for one test of the store.
#pragma once

#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QStringList>

#include <optional>

using namespace Qt::StringLiterals;

// The failure that an action ends in, or nothing.
template <typename Action>
std::optional<Failure> failureOf(Action action)
{
    try {
        action();
    } catch (const Failure &failure) {
        return failure;
    }
    return std::nullopt;
}

template <typename Action>
int failureNumber(Action action)
{
    const std::optional<Failure> failure = failureOf(action);
    return failure ? int(failure->number()) : 0;
}

class StoreTest : public testing::Test
{
protected:
    // Makes the archive from a script and opens it.
    void open(const QString &script)
    {
        makeArchive(path(), script);
        ASSERT_EQ(m_connection.Open(path()).words, QString());
    }

    QString path(const QString &name = u"Prova.Mdb"_s) const { return m_folder.path() + u'/' + name; }

    // The first column of all rows, joined by blanks, null as "-".
    QString column(const QString &statement)
    {
        Recordset rows;
        rows.Open(statement, m_connection, Recordset::Access::ReadOnly);
        QStringList texts;
        for (int row = 0; row < rows.RecordCount(); ++row) {
            const Value value = rows.valueAt(row, 0);
            texts << (value.isNull() ? u"-"_s : value.text());
        }
        return texts.join(u' ');
    }

    TemporaryFolder m_folder;
    Connection m_connection;
};

// Rows a, b, c in the order of their keys 1, 2, 3.
inline const QString kThreeRows =
    u"CREATE TABLE T (ID INTEGER PRIMARY KEY AUTOINCREMENT, Nome VARCHAR(20) COLLATE NOCASE,"
    u" Quanto REAL, Pezzi INTEGER, Giorno DATE, Si BOOLEAN NOT NULL DEFAULT 0,"
    u" Nota TEXT COLLATE NOCASE);"
    u"INSERT INTO T (Nome) VALUES ('a'), ('b'), ('c');"_s;
