#include "Csv.h"
#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

QString wordsOf(const QString &text)
{
    try {
        CsvTable::fromText(text, "Prova");
    } catch (const Failure &failure) {
        return failure.words();
    }
    return "(nessun errore)";
}

TEST(CsvTest, CellsAreFoundByColumnAndRow)
{
    const CsvTable table = CsvTable::fromText("Piatto,tipo\nMela,Spuntino\nPane,\n", "Prova");
    EXPECT_EQ(table.columns(), QStringList({"Piatto", "tipo"}));
    EXPECT_EQ(table.rowCount(), 2);
    EXPECT_EQ(table.cell(0, "tipo"), "Spuntino");
    EXPECT_EQ(table.cell(1, "Piatto"), "Pane");
    EXPECT_EQ(table.cell(1, "tipo"), "");
}

TEST(CsvTest, QuotedCellsHoldCommasQuotesAndLineEnds)
{
    const CsvTable table = CsvTable::fromText("a,b\n\"x, \"\"y\"\"\",\"due\nrighe\"\n", "Prova");
    EXPECT_EQ(table.cell(0, "a"), "x, \"y\"");
    EXPECT_EQ(table.cell(0, "b"), "due\nrighe");
}

TEST(CsvTest, TheLastLineNeedsNoEndAndWindowsLineEndsAreRead)
{
    const CsvTable table = CsvTable::fromText("a,b\r\n1,2\r\n3,4", "Prova");
    EXPECT_EQ(table.rowCount(), 2);
    EXPECT_EQ(table.cell(0, "b"), "2");
    EXPECT_EQ(table.cell(1, "b"), "4");
}

TEST(CsvTest, ARowWithTooFewOrTooManyCellsIsToldByItsLine)
{
    EXPECT_EQ(wordsOf("a,b\n1,2\n3\n"), "Prova: la riga 3 ha 1 campi invece di 2");
    EXPECT_EQ(wordsOf("a,b\n1,2,3\n"), "Prova: la riga 2 ha 3 campi invece di 2");
    EXPECT_EQ(wordsOf(""), "Prova: manca la riga dei nomi");
}

TEST(CsvTest, AnUnknownColumnAndAMissingFileFail)
{
    const CsvTable table = CsvTable::fromText("a\n1\n", "Prova");
    EXPECT_THROW(table.cell(0, "b"), Failure);
    EXPECT_THROW(CsvTable::read("/non/esiste.csv"), Failure);
}

} // namespace
