#include "planner/SettaPreferiti.h"

#include "planner/PlannerTest.h"

namespace {

using SettaPreferitiTest = PlannerTest;

TEST_F(SettaPreferitiTest, ItChangesNothingAndSaysNothing)
{
    fillCatalogue();
    const QStringList before = rowsOf(dati, "Sostituisci");
    SettaPreferiti(world.modulo, false);
    SettaPreferiti(world.modulo, true);
    EXPECT_EQ(rowsOf(dati, "Sostituisci"), before);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(SettaPreferitiTest, ItFailsWhereTheTableCannotBeRead)
{
    dati.Execute("DROP TABLE Sostituisci");
    EXPECT_THROW(SettaPreferiti(world.modulo, false), Failure);
}

} // namespace
