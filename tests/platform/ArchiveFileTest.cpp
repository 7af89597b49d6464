// Archive files made, copied and checked.
#include "platform/StoreTest.h"

#include <QFile>

namespace {

class ArchiveFileTest : public StoreTest
{
protected:
    QString names(const QString &file, const QString &password = {})
    {
        EXPECT_EQ(m_connection.Open(path(file), password).words, QString());
        return column(u"Select Nome from T order by ID"_s);
    }
};

TEST_F(ArchiveFileTest, AnArchiveIsMadeFromAScriptAndIsOneFile)
{
    makeArchive(path(), kThreeRows);
    EXPECT_EQ(m_folder.entries(), QStringList(u"Prova.Mdb"_s));
    EXPECT_EQ(names(u"Prova.Mdb"_s), u"a b c"_s);
    m_connection.Close();
    EXPECT_EQ(m_folder.entries(), QStringList(u"Prova.Mdb"_s));
}

TEST_F(ArchiveFileTest, AFileThatIsThereIsNeverOverwritten)
{
    makeArchive(path(), kThreeRows);
    const QByteArray before = m_folder.read(u"Prova.Mdb"_s);
    const auto failure = failureOf([&] { makeArchive(path(), u"CREATE TABLE Altra (ID INTEGER)"_s); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), FailureNumber::PathAccess);
    EXPECT_EQ(failure->words(), u"Non si può scrivere il file o la cartella: %1 esiste già"_s.arg(path()));
    EXPECT_EQ(failureNumber([&] { copyEncrypted(path(), path(), u"x"_s); }), int(FailureNumber::PathAccess));
    EXPECT_EQ(m_folder.read(u"Prova.Mdb"_s), before);
}

TEST_F(ArchiveFileTest, AScriptThatFailsLeavesNoFile)
{
    EXPECT_EQ(failureNumber([&] { makeArchive(path(), kThreeRows + u"INSERT INTO Manca VALUES (1);"_s); }),
              int(FailureNumber::Engine));
    EXPECT_EQ(m_folder.entries(), QStringList());
}

TEST_F(ArchiveFileTest, AFolderThatIsNotThereIsAFailure)
{
    EXPECT_EQ(failureNumber([&] { makeArchive(path(u"manca/Prova.Mdb"_s), kThreeRows); }),
              int(FailureNumber::PathAccess));
}

TEST_F(ArchiveFileTest, AnEncryptedCopyHoldsTheSameAndOpensWithItsPasswordAlone)
{
    makeArchive(path(), kThreeRows);
    copyEncrypted(path(), path(u"Copia.Mdb"_s), u"l'altra"_s);
    EXPECT_EQ(m_connection.Open(path(u"Copia.Mdb"_s)).outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(names(u"Copia.Mdb"_s, u"l'altra"_s), u"a b c"_s);
    // Keys go on where they were.
    m_connection.Execute(u"DELETE FROM T WHERE ID = 3"_s);
    m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('d')"_s);
    EXPECT_EQ(column(u"Select ID from T order by ID"_s), u"1 2 4"_s);
    EXPECT_EQ(names(u"Prova.Mdb"_s), u"a b c"_s);
}

TEST_F(ArchiveFileTest, ACopyWithoutAPasswordIsPlainAgain)
{
    makeArchive(path(), kThreeRows, u"segreto"_s);
    copyEncrypted(path(), path(u"Copia.Mdb"_s), QString(), u"segreto"_s);
    EXPECT_TRUE(m_folder.read(u"Copia.Mdb"_s).startsWith("SQLite format 3"));
    EXPECT_EQ(names(u"Copia.Mdb"_s), u"a b c"_s);
}

TEST_F(ArchiveFileTest, AnOriginalThatDoesNotOpenLeavesNoCopy)
{
    makeArchive(path(), kThreeRows, u"segreto"_s);
    EXPECT_EQ(failureNumber([&] { copyEncrypted(path(), path(u"Copia.Mdb"_s), u"x"_s, u"sbagliata"_s); }),
              int(FailureNumber::LoginRefused));
    EXPECT_EQ(m_folder.entries(), QStringList(u"Prova.Mdb"_s));
}

TEST_F(ArchiveFileTest, ASoundArchiveHasNoFaults)
{
    makeArchive(path(), kThreeRows + u"CREATE INDEX N ON T (Nome);"_s, u"segreto"_s);
    EXPECT_EQ(integrityCheck(path(), u"segreto"_s), QStringList());
    EXPECT_EQ(integrityCheck(path()), QStringList(u"L'archivio è protetto da una password"_s));
}

TEST_F(ArchiveFileTest, ADamagedPageIsAFault)
{
    // Rows enough for a page that the opening does not read.
    makeArchive(path(), kThreeRows + u"INSERT INTO T (Nota) SELECT hex(zeroblob(1000)) FROM T, T AS U, T AS V;"_s);
    QByteArray bytes = m_folder.read(u"Prova.Mdb"_s);
    bytes.replace(bytes.size() - 4096, 4096, QByteArray(4096, '\x7f'));
    m_folder.write(u"Prova.Mdb"_s, bytes);
    EXPECT_TRUE(m_connection.Open(path()));
    EXPECT_FALSE(integrityCheck(path()).isEmpty());
    const auto failure = failureOf([&] { column(u"Select Nota from T"_s); });
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->words().startsWith(u"L'archivio è danneggiato ("_s)) << failure->words().toStdString();
}

} // namespace
