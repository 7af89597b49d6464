// The program folder and the paths in it. A told path ("\ini\Anagrafica.txt") may use either sign between folders, and
// each of its names is found without regard to case; a name that is not there yet keeps the spelling told.
#pragma once

#include <QString>

class ProgramFolder
{
public:
    explicit ProgramFolder(const QString &path);

    const QString &path() const { return m_path; }
    QString resolve(const QString &told) const; // native, absolute
    bool fileExists(const QString &told) const; // a regular file that is not hidden
    bool folderExists(const QString &told) const;
    void makeFolder(const QString &told) const; // throws Failure(PathAccess)
    void deleteFile(const QString &told) const; // a file that is not there throws Failure(FileNotFound)

    // Any native or backslashed path, outside the program folder too, resolved in the same way.
    static QString resolveAbsolute(const QString &path);
    // Where the program keeps its things when nobody says so: beside the executable where that may be written and is
    // no system folder, else the user's data folder.
    static QString usual(const QString &executableFolder);

private:
    QString m_path;
};
