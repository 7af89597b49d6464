// A folder of its own for one test, gone afterwards.
#pragma once

#include "platform/text/ProgramFolder.h"

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

class TemporaryFolder
{
public:
    TemporaryFolder();

    QString path() const { return m_folder.path(); }
    // The native path of something told as the program tells it, "\ini\Anagrafica.txt".
    QString path(const QString &told) const;
    bool has(const QString &told) const; // a file or a folder
    // Makes a file with exactly these bytes, and the folders that lead to it.
    void write(const QString &told, const QByteArray &bytes) const;
    QByteArray read(const QString &told) const; // fails the test where the file is not there
    void makeFolder(const QString &told) const;
    void remove(const QString &told) const;              // a file or a whole folder
    QStringList entries(const QString &told = {}) const; // names in a folder, sorted, folders with a "/" behind

private:
    QTemporaryDir m_folder;
};
