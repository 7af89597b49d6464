// The main window's hidden buttons: the maintenance commands behind them.
#include "shell/forms/Menu.h"

#include "shell/Manutenzione.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

#include <QPushButton>

namespace {

class MenuFormTest : public testing::Test, protected FormWorld<Menu>
{
protected:
    QPushButton &button(const QString &name) { return control<QPushButton>(name); }
};

TEST_F(MenuFormTest, TheMaintenanceButtonsAreHiddenAndCaptioned)
{
    const std::pair<const char *, const char *> captions[] = {
        {"Command111", "kcal100gr"}, {"Command133", "Sostituisci"}, {"Command10", "No Corrispondenti"}};
    for (const auto &[name, caption] : captions) {
        EXPECT_TRUE(button(name).isHidden()) << name;
        EXPECT_EQ(button(name).text(), QString(caption));
    }
}

TEST_F(MenuFormTest, EachMaintenanceButtonRunsItsCommand)
{
    insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr", {"'Pasta', 'Sale', 1"});
    insertRows(dati, "newPiatti", "Piatto, alimento, kc100gr", {"'Pasta', 'Sale', 7"});
    button("Command111").click();
    EXPECT_EQ(valueOf(dati, "Select KC100gr from Piatti"), "7");

    insertRows(dati, "Sostituisci", "Piatto, sostituisci1100", {"'Pasta', 'Riso'"});
    button("Command133").click();
    EXPECT_EQ(valueOf(dati, "Select Piatto from SostituisciMaster"), "Riso");

    insertRows(dati, "Nocorrispondenza", "Piatto, sostituisci1100", {"'Uova', '- Uova (60 gr.)'"});
    button("Command10").click();
    EXPECT_EQ(form().windowTitle(), "Uova");
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + FileDiScambio(world.modulo)));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList({"MsgBox 0 \"\" Fattto", "MsgBox 0 \"\" fatto"}));
    EXPECT_EQ(failures, QStringList());
}

TEST_F(MenuFormTest, ACommandWithoutItsTableIsToldAndTheWindowLivesOn)
{
    dati.Execute("DROP TABLE newPiatti");
    button("Command111").click();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures.first().contains("newPiatti")) << failures.first().toStdString();
    EXPECT_TRUE(registry.isLoaded<Menu>());
}

} // namespace
