// The one exception family of the program: a number, the words for the user (Italian), and the statement at fault.
#pragma once

#include <QString>

#include <exception>

enum class FailureNumber : int
{
    TypeMismatch = 13,          // a text that is no number or no date
    FileNotFound = 53,          // also: a program that cannot be started
    InputPastEnd = 62,          // reading past the end of a text file
    PathAccess = 75,            // a file or folder that may not be written
    PathNotFound = 76,          // a folder that is not there
    InvalidNull = 94,           // null where a value is needed
    NoCurrentRow = 3021,        // no current row in a record set
    NotPermitted = 3251,        // writing to a read-only record set
    NoSuchField = 3265,         // a field name that the record set lacks
    ObjectClosed = 3704,        // an operation on a closed record set
    ObjectOpen = 3705,          // opening a record set that is open
    ConnectionClosed = 3709,    // a statement on a connection that is not open
    Cancelled = 32755,          // the user gave a dialog of the system up
    RowChanged = -2147217864,   // the row was changed or deleted by somebody else since it was read
    LoginRefused = -2147217843, // the archive has a password
    Engine = -2147217900,       // whatever else the engine reports
};

class Failure : public std::exception
{
public:
    Failure(FailureNumber number, const QString &words, const QString &statement = {});

    FailureNumber number() const { return m_number; }
    const QString &words() const { return m_words; }
    const QString &statement() const { return m_statement; }
    const char *what() const noexcept override { return m_what.constData(); }

    // The number's usual Italian words, for instance "Tipo non corrispondente".
    static Failure usual(FailureNumber number, const QString &detail = {});

private:
    FailureNumber m_number;
    QString m_words;
    QString m_statement;
    QByteArray m_what;
};

// Thrown where the program is told to end at once. It is no failure: it passes every handler and reaches Main.
class ProgramEnd
{
};
