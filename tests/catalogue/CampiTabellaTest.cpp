#include "catalogue/CampiTabella.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

TEST(TipoCampoTest, EachTypeNumberHasItsCodeAndOthersReadZZ)
{
    const std::pair<int, const char *> codes[] = {{1, "BO"},  {2, "NB"},   {3, "NI"},   {4, "NL"},  {5, "NC"},
                                                  {6, "NS"},  {7, "ND"},   {8, "DD"},   {9, "ZZ"},  {10, "TT"},
                                                  {11, "LL"}, {12, "MM"},  {13, "ZZ"},  {15, "GG"}, {16, "ZZ"},
                                                  {0, "ZZ"},  {202, "TT"}, {203, "ZZ"}, {-1, "ZZ"}};
    for (const auto &[number, code] : codes)
        EXPECT_EQ(TipoCampo(number), code) << number;
}

class CampiTabellaTest : public testing::Test
{
protected:
    CampiTabellaTest() : dati(world.openArchive()) {}

    void replaceTable(const QString &columns)
    {
        dati.Execute("DROP TABLE Amministratori");
        dati.Execute("CREATE TABLE Amministratori (" + columns + ")");
    }

    TestWorld world;
    Connection &dati;
};

TEST_F(CampiTabellaTest, TheColumnsAreThoseOfAmministratoriInCapitalsWithCodeAndSize)
{
    replaceTable("Id INTEGER PRIMARY KEY, DataInserimento DATE, Predefinito BOOLEAN, Nome VARCHAR(30), Quanto REAL, "
                 "Nota TEXT");
    const CampiTabella campi = LeggiCampiTabella(world.modulo);
    QStringList told;
    for (const ColonnaTabella &one : campi.colonne)
        told.append(QString("%1 %2 %3 %4").arg(one.nome, one.tipo).arg(one.segnata).arg(one.dimensione));
    EXPECT_EQ(told, QStringList({"ID NI 0 4", "DATAINSERIMENTO ND 0 8", "PREDEFINITO LL 0 2", "NOME TT 0 30",
                                 "QUANTO NC 0 8", "NOTA ZZ 0 536870910"}));
    EXPECT_EQ(campi.tabella, "Amministratori");
    EXPECT_EQ(campi.mancanti(), "");
}

TEST_F(CampiTabellaTest, AColumnIsFoundByItsExactNameAlone)
{
    const CampiTabella campi = LeggiCampiTabella(world.modulo);
    EXPECT_NE(campi.colonna("ID"), nullptr);
    EXPECT_EQ(campi.colonna("Id"), nullptr);
    EXPECT_EQ(campi.colonna("Alimento"), nullptr);
}

TEST_F(CampiTabellaTest, EachMissingColumnIsToldInItsOrder)
{
    replaceTable("Nome VARCHAR(30)");
    EXPECT_EQ(LeggiCampiTabella(world.modulo).mancanti(),
              "Manca campo ID - tipo LONG\rManca campo  DATAINSERIMENTO - tipo DATE\rManca campo  PREDEFINITO - tipo "
              "BOOLEAN");
    replaceTable("ID INTEGER, PREDEFINITO BOOLEAN");
    EXPECT_EQ(LeggiCampiTabella(world.modulo).mancanti(), "Manca campo  DATAINSERIMENTO - tipo DATE\r");
}

TEST_F(CampiTabellaTest, TheMessageNamesTheTableAndTheMissingColumns)
{
    const MsgBoxEx box = TabellaNonConforme("Amministratori", "Manca campo  PREDEFINITO - tipo BOOLEAN");
    EXPECT_EQ(box.title, "Tabella non conforme!!");
    EXPECT_EQ(box.body, QString::fromUtf8("La tabella  Amministratori non contiene\runo o piï¿½ campi obligatori:\r"
                                          "____________________________________________\r\r\r"
                                          "Manca campo  PREDEFINITO - tipo BOOLEAN"));
    EXPECT_EQ(box.buttons, QStringList("OK"));
    EXPECT_EQ(box.picture, 32);
}

TEST_F(CampiTabellaTest, WithoutTheTableReadingFails)
{
    dati.Execute("DROP TABLE Amministratori");
    EXPECT_THROW(LeggiCampiTabella(world.modulo), Failure);
}

} // namespace
