// A prepared archive and a piece of work on it: sheets of some weeks there already, then weeks planned, expanded and
// balanced over them.
#pragma once

#include "faults/Contents.h"
#include "faults/UnluckyDisk.h"
#include "road/RoadWorld.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <vector>

class RoadTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    // Prepares the archive for a work that plans, expands and balances so many days, one time after the other.
    static void prepareWork(const std::vector<int> &days);

    // The work itself, for a child.
    static void work(bool digests = false);
    // Puts the prepared archive back.
    static void prepare();
    static QString archive();

    struct Shared
    {
        RoadWorld world;
        QTemporaryDir folder;
        std::vector<int> days;
        QString prepared;               // a copy of the archive before the work
        qint64 bytes = 0;               // that the whole work writes
        std::vector<quint64> afterward; // what the archive holds after so many commits; the first is before the work
    };
    static Shared &shared() { return *s_shared; }

private:
    static Shared *s_shared;
};
