// A connection to one archive: opens it, executes statements, and is what record sets open on.
#pragma once

#include "platform/Failure.h"

#include <QString>

#include <memory>

enum class OpenOutcome
{
    Aperto,
    PasswordRichiesta,
    Errore
};

struct OpenResult
{
    OpenOutcome outcome = OpenOutcome::Errore;
    int number = 0; // of the failure
    QString words;  // of the failure, in Italian
    explicit operator bool() const { return outcome == OpenOutcome::Aperto; }
};

class Connection
{
public:
    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    // Opens an existing archive; never makes one. A plain archive needs no password; an encrypted one without the
    // right password gives PasswordRichiesta; whatever else is wrong (missing, damaged, foreign) gives Errore.
    [[nodiscard]] OpenResult Open(const QString &path, const QString &password = {});
    // The same to look at the archive alone: nothing of the file is changed, not even the way its journal is kept.
    [[nodiscard]] OpenResult OpenForInspection(const QString &path, const QString &password = {});
    void Close();
    bool isOpen() const;
    QString path() const;

    // Executes one Jet statement, gives the rows it changed. Throws Failure: ConnectionClosed, or Engine with the
    // engine's words and the statement.
    qint64 Execute(const QString &statement);

    // Whether `name` is a table or stored query of this archive (case does not matter).
    bool hasTable(const QString &name) const;

    // How long a statement waits for another program that is writing; 5 seconds unless told.
    void setLockWait(int milliseconds);

    struct Private; // the engine's side, for the files of this folder alone
    Private &engine() const { return *m_private; }

private:
    std::unique_ptr<Private> m_private;
};

class Database;

// While one of these lives, writes are committed in groups instead of one by one. It always commits, on failure too,
// and never rolls back: what was written stays written. Scopes may nest; the outermost one decides. An operation that
// went well ends its scope by close(), so that a last commit that fails is its own failure; one that ends by an
// exception leaves that to the destructor, and the connection's next statement throws it.
class GruppoScritture
{
public:
    explicit GruppoScritture(Connection &connection);
    ~GruppoScritture();
    GruppoScritture(const GruppoScritture &) = delete;
    GruppoScritture &operator=(const GruppoScritture &) = delete;

    void commit(); // what was written so far, before somebody is asked; the scope goes on. Throws Failure(Engine)
    void close();  // ends the scope: commits where it is the outermost. Throws Failure(Engine)

private:
    std::weak_ptr<Database> m_database; // the archive may be closed while the scope lives
    bool m_closed = false;
};
