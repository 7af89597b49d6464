// Keeps every other program away from an archive.
#pragma once

#include <QString>

// Keeps an archive file for its holder alone, whatever is in it: as long as this lives, the engine finds the file in
// use, in this process too. So it is read as a plain file, or as a copy.
class ArchiveHold
{
public:
    // The file must be there. Takes the lock at once or not at all; see isHeld.
    explicit ArchiveHold(const QString &path);
    ~ArchiveHold();
    ArchiveHold(const ArchiveHold &) = delete;
    ArchiveHold &operator=(const ArchiveHold &) = delete;

    // False where somebody has the archive open. A file that may only be read is held against writers.
    bool isHeld() const { return m_held; }

    // To be told after another file has taken the name: a program that had opened the file meanwhile and waits for it
    // is to meet a failure, and not to write where nobody reads any more. Nothing where the file has a name still.
    void retire() const;

private:
    int m_file = -1;
    bool m_held = false;
};
