#include "catalogue/RicercaRecord.h"

#include "catalogue/AggiustaCasini.h"
#include "catalogue/ControllaCaratteri.h"
#include "catalogue/DuplicaRecord.h"
#include "catalogue/ElencoMenu.h"
#include "catalogue/RigaPosizione.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class SchedaRecordLogicTest : public testing::Test
{
protected:
    SchedaRecordLogicTest() : dati(world.openArchive()) {}

    void insertFoods()
    {
        insertRows(dati, "Categorie", "ID, Alimento, TIPO, Kcal, KJ, DataInserimento",
                   {"1, 'Caffè d''orzo', 3, 20, 84, '2020-01-31'", "2, 'Riso', 4, 350, Null, Null",
                    "3, 'Risone', 4, 340, Null, Null", "7, Null, Null, 12, Null, Null"});
    }
    void open(const QString &statement = "SELECT * FROM Categorie") { rows.Open(statement, dati); }
    QString field(const QString &name, int id)
    {
        Recordset one;
        one.Open(QString("SELECT * FROM Categorie WHERE ID = %1").arg(id), dati);
        return one.value(name).isNull() ? "NULL" : one.value(name).text();
    }

    TestWorld world;
    Connection &dati;
    Recordset rows;
};

using RicercaRecordTest = SchedaRecordLogicTest;

TEST_F(RicercaRecordTest, TheCriterionHoldsTheAnswerInCapitalsWithItsAccents)
{
    EXPECT_EQ(CriterioRicerca("Alimento", "riso"), "Alimento like 'RISO%'");
    EXPECT_EQ(CriterioRicerca("Alimento", "caffe' d'orzo"), QString::fromUtf8("Alimento like 'CAFFÈ D\u2019ORZO%'"));
}

TEST_F(RicercaRecordTest, TheSearchGoesForwardFromTheCurrentRowWithItIncluded)
{
    insertFoods();
    open();
    EXPECT_TRUE(CercaDa(rows, "Alimento like 'RIS%'", 1));
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_TRUE(CercaDa(rows, "Alimento like 'RIS%'", 1));
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_TRUE(CercaDa(rows, "Alimento like 'RISON%'", 1));
    EXPECT_EQ(rows.AbsolutePosition(), 3);
}

TEST_F(RicercaRecordTest, AFailedSearchReturnsToTheRowWhereItBegan)
{
    insertFoods();
    open();
    for (const int began : {1, 3, 4}) {
        EXPECT_FALSE(CercaDa(rows, "Alimento like 'ZZ%'", began));
        EXPECT_EQ(rows.AbsolutePosition(), began);
    }
}

TEST_F(RicercaRecordTest, AnEmptySetHasNothingToFindAndDoesNotFail)
{
    open();
    EXPECT_FALSE(CercaDa(rows, "Alimento like 'A%'", -1));
}

TEST_F(RicercaRecordTest, AColumnThatTheSetLacksFails)
{
    insertFoods();
    open();
    EXPECT_THROW(CercaDa(rows, "Nominativo like 'A%'", 1), Failure);
}

using RigaPosizioneTest = SchedaRecordLogicTest;

TEST_F(RigaPosizioneTest, EachCommandHasItsOwnPrefixes)
{
    const std::pair<const RigaPosizione *, std::pair<const char *, const char *>> lines[] = {
        {&Posizione::AlPrimo, {"2\\4", " RecordSet Vuoto!!"}},
        {&Posizione::Navigazione, {"2\\4", "RecordSet Vuoto!!"}},
        {&Posizione::Record, {"Record: 2\\4", "RecordSet Vuoto!!"}},
        {&Posizione::Salvata, {"F1 Help     *    Record: 2\\4", "F1 Help     *    RecordSet Vuoto!!"}},
        {&Posizione::Annullata, {"Record: 2\\4", "F1 Help     *    RecordSet Vuoto!!"}}};
    Recordset empty;
    empty.Open("SELECT * FROM Categorie", dati);
    insertFoods();
    open();
    rows.MoveNext();
    for (const auto &[line, texts] : lines) {
        EXPECT_EQ(line->testo(rows), texts.first);
        EXPECT_EQ(line->testo(empty), texts.second);
    }
}

using DuplicaRecordTest = SchedaRecordLogicTest;

TEST_F(DuplicaRecordTest, EveryFieldIsCopiedButTheKeyAndTheDayOfInsertionToo)
{
    insertFoods();
    open();
    DuplicaRecord(world.modulo, rows, "Categorie");
    EXPECT_EQ(rows.AbsolutePosition(), 5);
    EXPECT_EQ(rows.RecordCount(), 5);
    EXPECT_FALSE(rows.isPending());
    QStringList copied;
    for (const char *name : {"ID", "Alimento", "TIPO", "Kcal", "KJ", "DataInserimento", "Prot_anim"})
        copied.append(field(name, 8));
    EXPECT_EQ(copied, QStringList({"8", "Caffè d'orzo", "3", "20", "84", "31/01/2020", "NULL"}));
}

TEST_F(DuplicaRecordTest, AFoodWithANullNameDuplicatesIntoANullName)
{
    insertFoods();
    open();
    rows.MoveLast();
    DuplicaRecord(world.modulo, rows, "Categorie");
    EXPECT_EQ(field("Alimento", 8), "NULL");
    EXPECT_EQ(field("Kcal", 8), "12");
}

TEST_F(DuplicaRecordTest, ANameOfBlanksIsLeftOut)
{
    insertRows(dati, "Categorie", "ID, Alimento", {"1, '   '"});
    open();
    DuplicaRecord(world.modulo, rows, "Categorie");
    EXPECT_EQ(field("Alimento", 2), "NULL");
}

TEST_F(DuplicaRecordTest, WithoutARowItFailsAndNothingIsAdded)
{
    open();
    EXPECT_THROW(DuplicaRecord(world.modulo, rows, "Categorie"), Failure);
    EXPECT_EQ(countOf(dati, "Categorie"), 0);
}

using ControllaCaratteriTest = SchedaRecordLogicTest;

TEST_F(ControllaCaratteriTest, EveryApostropheInATextBecomesABlankAndNullsStayNull)
{
    insertFoods();
    insertRows(dati, "Categorie", "ID, Alimento", {"9, '''a''b'''"});
    open();
    rows.MoveLast();
    ControllaCaratteri(rows, dati);
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    EXPECT_EQ(field("Alimento", 1), "Caffè d orzo");
    EXPECT_EQ(field("Alimento", 9), " a b ");
    EXPECT_EQ(field("Alimento", 2), "Riso");
    EXPECT_EQ(field("Alimento", 7), "NULL");
    EXPECT_EQ(field("Kcal", 1), "20");
}

TEST_F(ControllaCaratteriTest, AnEmptySetStaysAsItIs)
{
    open();
    EXPECT_NO_THROW(ControllaCaratteri(rows, dati));
}

using ElencoMenuTest = SchedaRecordLogicTest;

TEST_F(ElencoMenuTest, TheListHoldsTheEntriesWhoseNameBeginsWithMnuInAnyCase)
{
    AssicuraElencoMenu(world.modulo, "FrmProva",
                       {{"MnuView", "&Record"}, {"mnuLog", "Mostra Log"}, {"separatore", "x"}, {"mn", "y"}});
    EXPECT_EQ(world.cartella.read("\\INI\\FrmProva.mnu"), "MnuView=&Record\r\nmnuLog=Mostra Log\r\n");
}

TEST_F(ElencoMenuTest, AListThatIsThereStaysAsItIs)
{
    world.cartella.write("\\ini\\frmprova.MNU", "mio");
    AssicuraElencoMenu(world.modulo, "FrmProva", {{"MnuView", "&Record"}});
    EXPECT_EQ(world.cartella.entries("\\ini"), QStringList("frmprova.MNU"));
    EXPECT_EQ(world.cartella.read("\\ini\\frmprova.MNU"), "mio");
}

TEST(DecidiAggiustamentoTest, ATextIsCutToTheColumnsSizeUnlessItIsADay)
{
    const ColonnaTabella text{"NOME", "TT", false, 6};
    EXPECT_EQ(DecidiAggiustamento(text, "Mela"), Aggiustamento::Passa);
    EXPECT_EQ(DecidiAggiustamento(text, ""), Aggiustamento::Passa);
    EXPECT_EQ(DecidiAggiustamento(text, "Melone"), Aggiustamento::Passa);
    EXPECT_EQ(DecidiAggiustamento(text, "Melograno"), Aggiustamento::Taglia);
    EXPECT_EQ(DecidiAggiustamento(text, "1234567"), Aggiustamento::Taglia);
    EXPECT_EQ(DecidiAggiustamento(text, "31/01/2025"), Aggiustamento::Passa);
    EXPECT_EQ(DecidiAggiustamento(text, "31/02/2025"), Aggiustamento::Taglia);
    EXPECT_EQ(DecidiAggiustamento(text, " 31/01/2025"), Aggiustamento::FermaData);
    EXPECT_EQ(DecidiAggiustamento(text, "31/01/2025 10:20"), Aggiustamento::FermaData);
    EXPECT_EQ(DecidiAggiustamento(text, "31/01/2025 10:20:30"), Aggiustamento::FermaData);
    EXPECT_EQ(DecidiAggiustamento(text, "31/01/2025 domani"), Aggiustamento::Taglia);
}

TEST(DecidiAggiustamentoTest, ANumberOfANumberColumnStopsAndAnyOtherTextGoesByItsLength)
{
    for (const char *type : {"NI", "NB", "NL", "NS", "ND", "NC", "BO", "LL", "GG"}) {
        const ColonnaTabella number{"N", type, false, 4};
        EXPECT_EQ(DecidiAggiustamento(number, "12,5"), Aggiustamento::FermaEccessivo) << type;
        EXPECT_EQ(DecidiAggiustamento(number, ""), Aggiustamento::FermaEccessivo) << type;
        EXPECT_EQ(DecidiAggiustamento(number, "sei"), Aggiustamento::Passa) << type;
        EXPECT_EQ(DecidiAggiustamento(number, "cento"), Aggiustamento::Taglia) << type;
    }
}

TEST(DecidiAggiustamentoTest, AColumnOfAnUnknownTypePasses)
{
    EXPECT_EQ(DecidiAggiustamento({"NOTA", "ZZ", false, 4}, "123456"), Aggiustamento::Passa);
    EXPECT_EQ(DecidiAggiustamento({"MEMO", "MM", false, 4}, "123456"), Aggiustamento::Taglia);
}

} // namespace
