// A whole small world for one test: a program folder of its own, scripted surroundings, the program-wide state.
//
//   TestWorld world;
//   Connection &dati = world.openArchive();
//   insertRows(dati, "Piatti", "Piatto, Alimento", {"'Pasta', 'Sale'"});
//   world.dialoghi.answer(MsgAnswer::Si);
//   operation(world.modulo);
//   EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"Title\" text"));
#pragma once

#include "core/ModNetServer.h"
#include "support/Printers.h"
#include "support/ScriptedDialoghi.h"
#include "support/ScriptedEnvironment.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "support/TestSchermate.h"

class TestWorld
{
public:
    TestWorld(); // on 02/03/2025 at 10:20:30
    TestWorld(const TestWorld &) = delete;
    TestWorld &operator=(const TestWorld &) = delete;

    TemporaryFolder cartella; // the program folder
    ScriptedDialoghi dialoghi;
    RecordingProgrammi programmi;
    SetClock orologio;
    ScriptedDado dado;
    RecordingSchermo schermo;
    TestSchermate schermate;
    Environment mondo;
    ModNetServer modulo;

    // Makes an empty archive "Cibra.Mdb" in the program folder and opens it as the data connection.
    Connection &openArchive();
    // The household of the usual examples, Ondira 1100 and Tesmo 1500: in the globals and in ini\Anagrafica.txt.
    void setHousehold();
};
