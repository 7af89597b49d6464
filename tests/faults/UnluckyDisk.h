// A disk that the engine writes to through us: it counts, and at a given byte it kills the program or is full.
#pragma once

#include <QtGlobal>

#include <atomic>
#include <functional>

enum class Misfortune
{
    None,       // it only counts
    Kill,       // half of the write under way reaches the file, then the process is killed
    KillAtName, // the same before or after a file is given a name or loses it, whoever does that
    Full,       // this write and all that follow find no room
};

// What parent and child both see of a child's run.
struct Progress
{
    std::atomic<qint64> written = 0; // bytes; each deletion and truncation of a file counts as one more
    std::atomic<qint64> names = 0;   // moments before and after a file was given a name or lost it
    std::atomic<int> commits = 0;
    std::atomic<quint64> digests[256] = {}; // of what the archive held after each commit, where that was asked for
};

// Lies in memory that a fork shares.
Progress &sharedProgress();

// From now on in this process, at that byte or, for KillAtName, at that moment. Meant for a child, which ends with it.
void makeDiskUnlucky(Misfortune misfortune, qint64 at);

// Runs `work` in a child on such a disk, the progress being set back first, and gives the child's wait status. A work
// that throws ends the child with status 3, one that returns with 0.
int runOnUnluckyDisk(Misfortune misfortune, qint64 at, const std::function<void()> &work);
bool wasKilled(int status);
bool hasFailed(int status);
bool hasFinished(int status);
