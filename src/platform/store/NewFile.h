// A file taken for a new archive: it goes away again unless all went well.
#pragma once

#include <QString>

class NewFile
{
public:
    enum class Readers
    {
        Usual, // whom the system lets read new files
        OwnerAlone
    };
    explicit NewFile(
        const QString &path,
        Readers readers = Readers::Usual); // throws Failure(PathAccess) where it is there already or cannot be made
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    const QString &path() const { return m_path; }
    void keep() { m_done = true; }

private:
    QString m_path;
    bool m_done = false;
};
