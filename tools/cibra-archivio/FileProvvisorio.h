// A file under construction, beside the one that it is to become.
#pragma once

#include "ToltiAlSegnale.h"

#include <QString>

class FileProvvisorio
{
public:
    // Takes a free name in the folder of `path`; nothing is made yet. What tools that were killed have left under such
    // names of `path` is removed.
    explicit FileProvvisorio(const QString &path);
    ~FileProvvisorio(); // whatever still bears the name is removed; so it is where a signal ends the process
    FileProvvisorio(const FileProvvisorio &) = delete;
    FileProvvisorio &operator=(const FileProvvisorio &) = delete;

    const QString &path() const { return m_path; }

    // Gives the file its final name. Throws Failure(PathAccess) where that is not possible.
    void diventaNuovo() const;         // the final name must be free
    void sostituisciOriginale() const; // in one step: at any moment the name is that of a whole file

private:
    QString m_finalPath;
    QString m_path;
    ToltiAlSegnale m_alSegnale;
};
