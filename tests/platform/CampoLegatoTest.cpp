#include "platform/ui/CampoLegato.h"

#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FormHost.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest/QTest>
#include <QVBoxLayout>

namespace {

class CampoLegatoTest : public testing::Test
{
protected:
    CampoLegatoTest()
    {
        makeTestArchive(folder.path("\\prova.db"));
        EXPECT_TRUE(connection.Open(folder.path("\\prova.db")));
        insertRows(connection, "CategorieMaster", "ID, categorie", {"1, 'Frutta'", "2, 'Verdura'", "7, 'Latticini'"});
        insertRows(connection, "Categorie", "ID, Alimento, Kcal, KJ, TIPO, DataInserimento",
                   {"1, 'Mela', 52.5, Null, 1, '2025-03-02'", "2, 'Zucca', 26, 109, 2, Null",
                    "3, 'Drago', Null, Null, 99, Null"});
        auto *column = new QVBoxLayout(&window);
        for (QLineEdit *one : {nameBox, kcalBox, kjBox, dayBox})
            column->addWidget(one);
        column->addWidget(combo);
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
        rows = open();
        for (CampoLegato *one : {static_cast<CampoLegato *>(name), static_cast<CampoLegato *>(kcal),
                                 static_cast<CampoLegato *>(kj), static_cast<CampoLegato *>(day)})
            one->setDataSource(rows);
    }

    std::shared_ptr<Recordset> open(const QString &statement = "Select * from Categorie order by ID")
    {
        auto recordset = std::make_shared<Recordset>();
        recordset->Open(statement, connection);
        return recordset;
    }
    QString shown() const
    {
        return QStringList({nameBox->text(), kcalBox->text(), kjBox->text(), dayBox->text()}).join('|');
    }
    static void type(QLineEdit *box, const QString &text)
    {
        box->setFocus();
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
    }
    QString stored(const QString &field, int id)
    {
        const auto one = open(QString("Select * from Categorie where ID = %1").arg(id));
        return one->value(field).isNull() ? "NULL" : one->value(field).text();
    }
    template <typename Action>
    static QString wordsOf(Action action)
    {
        try {
            action();
        } catch (const Failure &failure) {
            return failure.words();
        }
        return {};
    }

    TemporaryFolder folder;
    Connection connection;
    QWidget window;
    QLineEdit *nameBox = new QLineEdit(&window), *kcalBox = new QLineEdit(&window), *kjBox = new QLineEdit(&window),
              *dayBox = new QLineEdit(&window);
    DataCombo *combo = new DataCombo(&window);
    CasellaLegata *name = new CasellaLegata(nameBox, "Alimento");
    CasellaLegata *kcal = new CasellaLegata(kcalBox, "kcal");
    CasellaLegata *kj = new CasellaLegata(kjBox, "KJ");
    CasellaLegata *day = new CasellaLegata(dayBox, "DataInserimento");
    std::shared_ptr<Recordset> rows;
};

TEST_F(CampoLegatoTest, BoxesShowTheCurrentRowAndFollowItsMoves)
{
    EXPECT_EQ(shown(), "Mela|52,5||02/03/2025");
    rows->MoveNext();
    EXPECT_EQ(shown(), "Zucca|26|109|");
    rows->MoveLast();
    EXPECT_EQ(shown(), "Drago|||");
    rows->MoveNext();
    EXPECT_EQ(shown(), "|||");
    rows->Find("Alimento = 'drago'");
    EXPECT_EQ(shown(), "|||") << "from the end there is nothing more to find";
    rows->MoveFirst();
    EXPECT_EQ(shown(), "Mela|52,5||02/03/2025");
    rows->Close();
    EXPECT_EQ(shown(), "|||");
    rows->Open("Select * from Categorie where ID = 2", connection);
    EXPECT_EQ(shown(), "Zucca|26|109|");
}

TEST_F(CampoLegatoTest, WhatWasTypedIsWrittenBeforeTheRecordSetMoves)
{
    type(kcalBox, "60,25");
    type(nameBox, "Mela d'inverno");
    EXPECT_TRUE(kcal->isChanged());
    EXPECT_EQ(stored("Kcal", 1), "52,5");
    rows->MoveNext();
    EXPECT_EQ(stored("Kcal", 1), "60,25");
    EXPECT_EQ(stored("Alimento", 1), "Mela d'inverno");
    EXPECT_EQ(shown(), "Zucca|26|109|");
    EXPECT_FALSE(kcal->isChanged());
}

TEST_F(CampoLegatoTest, AGridThatMovesTheRecordSetHasTheBoxesWrittenToo)
{
    DataGrid grid;
    FormHost host;
    grid.setHost(&host);
    grid.setDataSource(rows);
    type(kcalBox, "61");
    grid.setCurrentIndex(grid.model()->index(2, 0));
    EXPECT_EQ(stored("Kcal", 1), "61");
    EXPECT_EQ(nameBox->text(), "Drago");
}

TEST_F(CampoLegatoTest, UpdateWritesTypedTextsAndTheBoxesShowWhatTheRowHolds)
{
    type(kcalBox, "60.50");
    type(dayBox, "1/4/2025");
    rows->Update();
    EXPECT_EQ(stored("Kcal", 1), "60,5");
    EXPECT_EQ(shown(), "Mela|60,5||01/04/2025");
}

TEST_F(CampoLegatoTest, AThousandOfAFieldIsNoThousandPoint)
{
    type(kcalBox, "1.500");
    rows->Update();
    EXPECT_EQ(stored("Kcal", 1), "1,5");
}

TEST_F(CampoLegatoTest, ATextThatIsNoNumberStaysInItsBoxAndNothingMoves)
{
    type(kcalBox, "molte");
    EXPECT_EQ(wordsOf([&] { rows->MoveNext(); }), "Tipo non corrispondente: \"molte\" non è un numero (campo kcal)");
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    EXPECT_EQ(shown(), "Mela|molte||02/03/2025");
    EXPECT_TRUE(kcal->isChanged());
    type(kcalBox, "7");
    rows->MoveNext();
    EXPECT_EQ(stored("Kcal", 1), "7");
}

TEST_F(CampoLegatoTest, ATextThatIsNoDayIsRefusedInAnyWayItIsWrong)
{
    for (const char *wrong : {"31/02/2025", "2025", "domani", "1/2/25"}) {
        type(dayBox, wrong);
        EXPECT_TRUE(wordsOf([&] { rows->Update(); }).startsWith("Tipo non corrispondente")) << wrong;
    }
    EXPECT_EQ(stored("DataInserimento", 1), "02/03/2025");
}

TEST_F(CampoLegatoTest, AnEmptiedNumberOrDayIsNullAndAnEmptiedTextIsEmpty)
{
    type(kcalBox, "");
    type(dayBox, " ");
    type(nameBox, "");
    rows->Update();
    EXPECT_EQ(stored("Kcal", 1), "NULL");
    EXPECT_EQ(stored("DataInserimento", 1), "NULL");
    EXPECT_EQ(stored("Alimento", 1), "");
}

TEST_F(CampoLegatoTest, ABoxThatIsAsItWasWritesNothingSoANullStaysNull)
{
    rows->MoveLast();
    type(nameBox, "x");
    nameBox->setText("Drago");
    type(kcalBox, "1");
    kcalBox->clear();
    name->write();
    kcal->write();
    EXPECT_FALSE(rows->isPending());
    rows->Update();
    EXPECT_EQ(stored("Kcal", 3), "NULL");
}

TEST_F(CampoLegatoTest, ATextSetByCodeCountsAsTyped)
{
    kcalBox->setText("77");
    EXPECT_TRUE(kcal->isChanged());
    rows->Update();
    EXPECT_EQ(stored("Kcal", 1), "77");
}

TEST_F(CampoLegatoTest, LeavingABoxIsToldButAMessageBoxOrMenuIsNoLeaving)
{
    QSignalSpy left(kcal, &CampoLegato::left);
    kcalBox->setFocus();
    QTest::keyClick(kcalBox, Qt::Key_Tab);
    EXPECT_EQ(left.count(), 1);
    kcalBox->setFocus();
    QTest::mouseClick(nameBox, Qt::LeftButton);
    EXPECT_EQ(left.count(), 2);
    kcalBox->setFocus();
    for (const Qt::FocusReason away : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent event(QEvent::FocusOut, away);
        QApplication::sendEvent(kcalBox, &event);
    }
    EXPECT_EQ(left.count(), 2);
}

TEST_F(CampoLegatoTest, CancelUpdateForgetsWhatWasTypedAndWhatWaits)
{
    type(nameBox, "Pera");
    name->write();
    type(kcalBox, "uno");
    rows->CancelUpdate();
    EXPECT_EQ(shown(), "Mela|52,5||02/03/2025");
    EXPECT_FALSE(kcal->isChanged());
    rows->MoveNext();
    EXPECT_EQ(stored("Alimento", 1), "Mela");
}

TEST_F(CampoLegatoTest, ANewRowShowsEmptyBoxesAndTakesWhatIsTyped)
{
    rows->AddNew();
    EXPECT_EQ(shown(), "|||");
    rows->setValue("ID", 8);
    type(nameBox, "Peru");
    rows->Update();
    EXPECT_EQ(stored("Alimento", 8), "Peru");
}

TEST_F(CampoLegatoTest, AfterADeletionTheNextRowIsOnShowThenTheLastThenNothing)
{
    rows->Delete();
    EXPECT_EQ(shown(), "Zucca|26|109|");
    rows->MoveLast();
    rows->Delete();
    EXPECT_EQ(shown(), "Zucca|26|109|");
    rows->MoveFirst();
    rows->Delete();
    EXPECT_EQ(shown(), "|||");
}

TEST_F(CampoLegatoTest, TypingWhereThereIsNoRowIsRefusedAndTheBoxEmptiedAgain)
{
    rows->MoveLast();
    rows->MoveNext();
    type(kcalBox, "5");
    EXPECT_EQ(wordsOf([&] { kcal->write(); }), "Non c'è nessun record corrente (campo kcal)");
    EXPECT_EQ(kcalBox->text(), "");
    EXPECT_EQ(wordsOf([&] { rows->MoveFirst(); }), QString());
}

TEST_F(CampoLegatoTest, AChangeBySomebodyElseIsKeptAndToldInPlainWords)
{
    connection.Execute("UPDATE Categorie SET Kcal = 99 WHERE ID = 1");
    type(kcalBox, "60");
    EXPECT_EQ(wordsOf([&] { rows->MoveNext(); }), "Il record è stato modificato o cancellato nel frattempo: "
                                                  "la modifica non è stata salvata");
    EXPECT_EQ(stored("Kcal", 1), "99");
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    EXPECT_EQ(kcalBox->text(), "60");
    rows->Requery();
    EXPECT_EQ(shown(), "Mela|99||02/03/2025");
}

TEST_F(CampoLegatoTest, ARowDeletedUnderTheOpenFormIsToldInPlainWords)
{
    connection.Execute("DELETE FROM Categorie WHERE ID = 1");
    type(kcalBox, "60");
    EXPECT_EQ(wordsOf([&] { rows->Update(); }), "Il record è stato modificato o cancellato nel frattempo: "
                                                "la modifica non è stata salvata");
    rows->Requery();
    EXPECT_EQ(shown(), "Zucca|26|109|");
}

TEST_F(CampoLegatoTest, TheLimitHoldsForTypingAndCutsNoTextOfTheRow)
{
    name->setMaxLength(4);
    EXPECT_EQ(nameBox->maxLength(), 4);
    type(nameBox, "Mandorla");
    EXPECT_EQ(nameBox->text(), "Mand");
    rows->CancelUpdate();
    connection.Execute("UPDATE Categorie SET Alimento = 'Zucca gialla' WHERE ID = 2");
    rows->Requery();
    rows->MoveNext();
    EXPECT_EQ(nameBox->text(), "Zucca gialla");
    rows->MoveNext();
    EXPECT_EQ(nameBox->text(), "Drago");
    rows->MoveFirst();
    EXPECT_EQ(nameBox->maxLength(), 4);
}

TEST_F(CampoLegatoTest, AFieldThatTheRecordSetLacksShowsNothing)
{
    const auto other = open("Select ID, Alimento from Categorie");
    kcal->setDataSource(other);
    EXPECT_EQ(kcalBox->text(), "");
}

TEST_F(CampoLegatoTest, ABoxOnAnotherRecordSetNoLongerFollowsTheFirst)
{
    const auto other = open();
    kcal->setDataSource(other);
    type(kcalBox, "x");
    rows->MoveNext();
    EXPECT_EQ(kcalBox->text(), "x");
    delete kcal;
    other->MoveNext();
    EXPECT_EQ(kcalBox->text(), "x");
}

class ComboLegatoTest : public CampoLegatoTest
{
protected:
    ComboLegatoTest()
    {
        group->setRowSource(open("Select * from CategorieMaster"));
        group->setDataSource(rows);
    }
    void pick(const QString &item)
    {
        combo->setCurrentIndex(combo->findText(item));
        emit combo->activated(combo->currentIndex());
    }

    ComboLegato *group = new ComboLegato(combo, "TIPO", "categorie", "ID");
};

TEST_F(ComboLegatoTest, TheComboShowsTheNameForTheKeyAndNothingForAKeyWithoutRow)
{
    EXPECT_EQ(combo->text(), "Frutta");
    rows->MoveNext();
    EXPECT_EQ(combo->text(), "Verdura");
    rows->MoveNext();
    EXPECT_EQ(combo->text(), "");
}

TEST_F(ComboLegatoTest, APickWritesItsKey)
{
    pick("Latticini");
    EXPECT_TRUE(group->isChanged());
    rows->MoveNext();
    EXPECT_EQ(stored("TIPO", 1), "7");
}

TEST_F(ComboLegatoTest, ATypedNameGivesItsKeyAndAnUnknownOneIsRefused)
{
    QTest::keyClicks(combo, ""); // the list stays closed
    combo->setEditText("verdura");
    emit combo->lineEdit()->textEdited("verdura");
    rows->Update();
    EXPECT_EQ(stored("TIPO", 1), "2");
    combo->setEditText("Sassi");
    emit combo->lineEdit()->textEdited("Sassi");
    EXPECT_EQ(wordsOf([&] { rows->MoveNext(); }), "Tipo non corrispondente: \"Sassi\" non è nell'elenco (campo TIPO)");
    EXPECT_EQ(stored("TIPO", 1), "2");
}

TEST_F(ComboLegatoTest, AnUntouchedComboLeavesAKeyWithoutRowAlone)
{
    rows->MoveLast();
    type(nameBox, "Drago rosso");
    rows->MoveFirst();
    EXPECT_EQ(stored("TIPO", 3), "99");
}

TEST_F(ComboLegatoTest, AnEmptiedComboIsNull)
{
    combo->setText("");
    rows->Update();
    EXPECT_EQ(stored("TIPO", 1), "NULL");
}

} // namespace
