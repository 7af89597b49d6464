#include "support/TestArchive.h"

#include "platform/store/ArchiveFile.h"
#include "platform/store/Recordset.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QString script(const QString &schema)
{
    return QString::fromUtf8(bytesOf(QStringLiteral(CIBRA_SOURCE_DIR "/archive/") + schema));
}

// An empty archive is always the same, so it is made once for a test program and then copied.
QByteArray emptyArchive(const QString &schema)
{
    const TemporaryFolder folder;
    const QString path = folder.path("Vuoto.Mdb");
    makeArchive(path, script(schema));
    return bytesOf(path);
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QString currentRow(const Recordset &rows)
{
    QStringList texts;
    for (int column = 0; column < rows.fieldCount(); ++column) {
        const Value value = rows.value(column);
        texts.append(value.isNull() ? QStringLiteral("-") : value.text());
    }
    return texts.join(QStringLiteral(" | "));
}

} // namespace

void makeTestArchive(const QString &path)
{
    static const QByteArray kEmpty = emptyArchive(QStringLiteral("schema.sql"));
    writeFile(path, kEmpty);
}

void makeTestSystemArchive(const QString &path)
{
    static const QByteArray kEmpty = emptyArchive(QStringLiteral("schema-sistema.sql"));
    writeFile(path, kEmpty);
}

void makeProtectedTestArchive(const QString &path, const QString &password)
{
    makeArchive(path, script(QStringLiteral("schema.sql")), password);
}

void insertRows(Connection &connection, const QString &table, const QString &columns, const QStringList &rows)
{
    const GruppoScritture group(connection);
    for (const QString &row : rows)
        connection.Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns, row));
}

QStringList rowsOf(Connection &connection, const QString &statement)
{
    Recordset rows;
    rows.Open(statement, connection, Recordset::Access::ReadOnly);
    QStringList texts;
    for (; !rows.Eof(); rows.MoveNext())
        texts.append(currentRow(rows));
    return texts;
}

QString valueOf(Connection &connection, const QString &statement)
{
    const QStringList rows = rowsOf(connection, statement);
    if (rows.isEmpty()) {
        ADD_FAILURE() << "no row: " << statement.toStdString();
        return {};
    }
    return rows.first().section(QStringLiteral(" | "), 0, 0);
}

int countOf(Connection &connection, const QString &table)
{
    return int(rowsOf(connection, QStringLiteral("Select * from ") + table).size());
}
