#include "catalogue/forms/MyBrowse.h"

#include "support/FormWorld.h"

#include <gtest/gtest.h>

#include <QListWidget>

namespace {

class MyBrowseTest : public testing::Test, protected FormWorld<MyBrowse>
{
protected:
    MyBrowseTest()
    {
        world.cartella.write("Documenti/02032025.html", "pagina");
        world.cartella.write("Documenti/01032025.txt", "testo");
        world.cartella.write("Documenti/vecchi/01012024.html", "pagina");
        show();
    }
    QStringList items(const char *name)
    {
        QStringList all;
        const auto &list = control<QListWidget>(name);
        for (int row = 0; row < list.count(); ++row)
            all.append(list.item(row)->text());
        return all;
    }
    void doubleClick(const char *name, int row)
    {
        auto &list = control<QListWidget>(name);
        list.setCurrentRow(row);
        emit list.itemDoubleClicked(list.item(row));
    }
};

TEST_F(MyBrowseTest, ItOpensOnTheFolderOfTheSavedPages)
{
    EXPECT_EQ(form().windowTitle(), "Browse");
    EXPECT_EQ(text("Label1"), "Visualizza menu di archivio - Clicca 2 volte sul file da visualizzare");
    EXPECT_EQ(items("File1"), QStringList({"01032025.txt", "02032025.html"}));
    EXPECT_EQ(items("Dir1"), QStringList({"..", "vecchi"}));
    EXPECT_EQ(text("LbPercorso"), world.cartella.path("Documenti"));
}

TEST_F(MyBrowseTest, ADoubleClickOpensTheFile)
{
    doubleClick("File1", 1);
    EXPECT_EQ(world.programmi.started, QStringList("Page " + world.cartella.path("Documenti/02032025.html")));
}

TEST_F(MyBrowseTest, EnterOpensItToo)
{
    auto &list = control<QListWidget>("File1");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(world.programmi.started, QStringList()); // nothing is chosen yet
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("Documenti/01032025.txt")));
}

TEST_F(MyBrowseTest, AnotherFolderMovesTheFileList)
{
    doubleClick("Dir1", 1);
    EXPECT_EQ(items("File1"), QStringList("01012024.html"));
    doubleClick("File1", 0);
    EXPECT_EQ(world.programmi.started, QStringList("Page " + world.cartella.path("Documenti/vecchi/01012024.html")));
}

TEST_F(MyBrowseTest, AProgramThatIsMissingIsToldAndTheWindowStays)
{
    world.programmi.nothingIsInstalled = true;
    doubleClick("File1", 0);
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(form().isVisible());
}

TEST_F(MyBrowseTest, EscClosesIt)
{
    key(Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
}

} // namespace
