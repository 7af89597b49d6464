// What archives are known by on the disk: how their files begin, and the files that the engine keeps beside them.
#pragma once

#include <QByteArrayView>
#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <array>

// As many bytes of a file's beginning as the questions below want.
inline constexpr qsizetype kArchiveSign = 24;

// Whether a file that begins so is an archive without a password, however damaged behind it.
bool isPlainArchive(QByteArrayView start);
// Whether a file that begins so is an old .mdb file, of whatever version and however damaged.
bool isJetFile(QByteArrayView start);

// What the engine adds to an archive's name for the files beside it: two journals, and the readers' map of the first.
// They belong to the archive: one that stayed alone would be taken for that of the next file of the name.
inline constexpr QLatin1String kWriteAheadLog("-wal");
inline constexpr QLatin1String kRollbackJournal("-journal");
inline constexpr QLatin1String kSharedMemory("-shm");
inline constexpr std::array kCompanionEndings = {kWriteAheadLog, kRollbackJournal, kSharedMemory};

// The file that `path` leads to through links, be it there or not. The engine keeps its files beside that one.
QString throughLinks(const QString &path);

// The paths of those files for the archive `path`, whether they are there or not.
QStringList companionFiles(const QString &path);
// Whether a journal beside the archive holds something that the archive itself may lack.
bool hasJournal(const QString &path);
