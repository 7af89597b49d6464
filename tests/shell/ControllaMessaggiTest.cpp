// The administrator's messages.
#include "shell/ControllaMessaggi.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class ControllaMessaggiTest : public testing::Test
{
protected:
    TestWorld world;

    void SetUp() override
    {
        makeTestSystemArchive(world.cartella.path("NetServer.Mdb"));
        world.modulo.ConnessioneSistema = std::make_unique<Connection>();
        ASSERT_TRUE(world.modulo.ConnessioneSistema->Open(world.cartella.path("NetServer.Mdb")));
    }
    void message(const QStringList &rows)
    {
        insertRows(*world.modulo.ConnessioneSistema, "Messaggi", "Messaggio, TipoBlocco, data", rows);
    }
    QStringList check()
    {
        ControllaMessaggi(world.modulo);
        return world.dialoghi.takeBoxes();
    }
};

const QString kNotice = "MsgBox 48 \"Messaggio Amministratore di Rete\" CHIUDERE ALLE 18, È TARDI\r\rMettersi in "
                        "contatto con Tesmo Lorvani\rInterno telefonico: chiedere al centralino";

TEST_F(ControllaMessaggiTest, AnEmptyTableDoesNothing)
{
    EXPECT_EQ(check(), QStringList());
}

TEST_F(ControllaMessaggiTest, ANoticeOfTodayIsShownInCapitalsAtEveryCheck)
{
    message({"'Chiudere alle 18, è tardi', 0, #3/2/2025#"});
    EXPECT_EQ(check(), QStringList(kNotice));
    EXPECT_EQ(check(), QStringList(kNotice));
}

TEST_F(ControllaMessaggiTest, OnlyAYesOrNoTextIsRememberedAsSeen)
{
    message({"'True', 0, #3/2/2025#"});
    EXPECT_EQ(check().size(), 1);
    EXPECT_EQ(check(), QStringList());
    message({"'True', 1, #3/2/2025#"}); // kind 1 shows whether or not it was seen
    EXPECT_EQ(check().size(), 1);
}

TEST_F(ControllaMessaggiTest, ANoticeWhoseDayIsNotTodayIsNotShown)
{
    for (const char *row : {"'Ieri', 0, #3/1/2025#", "'Domani', 1, #3/3/2025#", "'Mai', 1, Null"}) {
        message({row});
        EXPECT_EQ(check(), QStringList()) << row;
    }
}

TEST_F(ControllaMessaggiTest, OnlyTheLastRowCounts)
{
    message({"'Primo', 1, #3/2/2025#", "'Ultimo', 1, #1/1/2020#"});
    EXPECT_EQ(check(), QStringList());
}

TEST_F(ControllaMessaggiTest, AnOrderToStopEndsTheProgramWhateverItsDayAndClosesBothConnections)
{
    world.openArchive();
    for (const char *row : {"'Stop', 2, #1/1/2020#", "'Stop', 2, Null"}) {
        ASSERT_TRUE(world.modulo.ConnessioneSistema->isOpen() ||
                    world.modulo.ConnessioneSistema->Open(world.cartella.path("NetServer.Mdb")));
        message({row});
        EXPECT_THROW(ControllaMessaggi(world.modulo), ProgramEnd) << row;
        EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList("MsgBox 16 \"Messaggio Amministratore di Rete\" Stop"));
        EXPECT_FALSE(world.modulo.ConnessioneDati->isOpen());
        EXPECT_FALSE(world.modulo.ConnessioneSistema->isOpen());
    }
}

TEST_F(ControllaMessaggiTest, OtherKindsAndNullKindsDoNothing)
{
    for (const char *row : {"'Tre', 3, #3/2/2025#", "'Nullo', Null, #3/2/2025#"}) {
        message({row});
        EXPECT_EQ(check(), QStringList()) << row;
    }
}

TEST_F(ControllaMessaggiTest, ASystemArchiveThatIsMissingOrClosedDoesNothing)
{
    world.modulo.ConnessioneSistema->Close();
    EXPECT_EQ(check(), QStringList());
    world.modulo.ConnessioneSistema.reset();
    EXPECT_EQ(check(), QStringList());
}

} // namespace
