#include "platform/text/ProgramFolder.h"
#include "platform/Failure.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>

namespace {

struct ProgramFolderTest : testing::Test
{
    TemporaryFolder disk;
    ProgramFolder folder{disk.path()};

    QString native(const QString &path) const { return disk.path() + u'/' + path; }
};

} // namespace

TEST_F(ProgramFolderTest, EitherSignStandsBetweenFolders)
{
    disk.write("INI/Anagrafica.txt", "x");
    EXPECT_EQ(folder.resolve("\\INI\\Anagrafica.txt"), native("INI/Anagrafica.txt"));
    EXPECT_EQ(folder.resolve("INI/Anagrafica.txt"), native("INI/Anagrafica.txt"));
    EXPECT_EQ(folder.resolve("\\\\INI\\\\Anagrafica.txt"), native("INI/Anagrafica.txt"));
    EXPECT_EQ(folder.resolve(""), disk.path());
}

TEST_F(ProgramFolderTest, EachNameIsFoundWithoutRegardToCase)
{
    disk.write("INI/GestioneRete.INI", "x");
    EXPECT_EQ(folder.resolve("\\ini\\gestionerete.ini"), native("INI/GestioneRete.INI"));
    EXPECT_TRUE(folder.fileExists("\\ini\\gestionerete.ini"));
    EXPECT_TRUE(folder.folderExists("\\ini"));
}

TEST_F(ProgramFolderTest, TheExactNameComesBeforeTheOthers)
{
    for (const char *name : {"Menu.jpg", "MENU.JPG"})
        ASSERT_TRUE(QFile(native(name)).open(QIODevice::WriteOnly));
    if (disk.entries().size() < 2)
        GTEST_SKIP() << "this disk takes both for one";
    EXPECT_EQ(folder.resolve("Menu.jpg"), native("Menu.jpg"));
    EXPECT_EQ(folder.resolve("MENU.JPG"), native("MENU.JPG"));
}

TEST_F(ProgramFolderTest, ANameThatIsNotThereKeepsTheSpellingTold)
{
    disk.makeFolder("documenti");
    EXPECT_EQ(folder.resolve("\\Documenti\\Cibra.html"), native("documenti/Cibra.html"));
    EXPECT_EQ(folder.resolve("\\TESTI\\Menu.txt"), native("TESTI/Menu.txt"));
}

TEST_F(ProgramFolderTest, AFolderAndAHiddenFileAreNoFiles)
{
    disk.makeFolder("Sfondo");
    disk.write(".conferma", "");
    EXPECT_FALSE(folder.fileExists("\\Sfondo"));
    EXPECT_FALSE(folder.fileExists("\\.conferma"));
    EXPECT_FALSE(folder.fileExists("\\Cont.log"));
    EXPECT_FALSE(folder.folderExists("\\.conferma"));
}

TEST_F(ProgramFolderTest, MakesAFolderUnderTheNameTold)
{
    folder.makeFolder("\\documenti");
    EXPECT_EQ(disk.entries(), QStringList("documenti/"));
    folder.makeFolder("\\Documenti");
    EXPECT_EQ(disk.entries(), QStringList("documenti/"));
    disk.write("INI", "a file in the folder's place");
    try {
        folder.makeFolder("\\INI");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::PathAccess);
    }
}

TEST_F(ProgramFolderTest, DeletesAFileAndFailsWhereThereIsNone)
{
    disk.write("Sfondo", "\r\n");
    folder.deleteFile("\\sfondo");
    EXPECT_EQ(disk.entries(), QStringList());
    try {
        folder.deleteFile("\\sfondo");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::FileNotFound);
    }
}

TEST_F(ProgramFolderTest, AnyPathOfTheDiskIsFoundInTheSameWay)
{
    disk.write("Archivi/Cibra.Mdb", "x");
    EXPECT_EQ(ProgramFolder::resolveAbsolute(native("archivi") + "\\cibra.mdb"), native("Archivi/Cibra.Mdb"));
    EXPECT_EQ(ProgramFolder::resolveAbsolute(native("archivi").replace('/', '\\') + "\\\\cibra.mdb"),
              native("Archivi/Cibra.Mdb"));
}

TEST_F(ProgramFolderTest, TheUsualPlaceIsBesideTheExecutableUnlessThatIsTheSystems)
{
    const QString users = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Cibra";
    EXPECT_EQ(ProgramFolder::usual(disk.path()), disk.path());
    EXPECT_EQ(ProgramFolder::usual("/usr/bin"), users);
    EXPECT_EQ(ProgramFolder::usual("/opt/cibra"), users);
    EXPECT_EQ(ProgramFolder::usual(native("not there")), users);
}
