#include "platform/store/EngineFailure.h"

#include <sqlcipher/sqlite3.h>

#include <QStringView>

#include <array>

namespace {

// What the engine says of a statement that it cannot run: its beginning, and our words with the name that follows it.
struct StatementFault
{
    QStringView beginning;
    const char16_t *words;
};

constexpr std::array kStatementFaults = {
    StatementFault{u"no such table: ", u"Manca la tabella %1 nell'archivio"},
    StatementFault{u"no such column: ", u"Manca la colonna %1 nell'archivio"},
    StatementFault{u"no such function: ", u"La funzione %1 non esiste"},
    StatementFault{u"ambiguous column name: ", u"Il nome di colonna %1 è ambiguo"},
};

QString statementWords(const QString &engineWords)
{
    for (const StatementFault &fault : kStatementFaults)
        if (engineWords.startsWith(fault.beginning))
            return QString::fromUtf16(fault.words).arg(QStringView(engineWords).mid(fault.beginning.size()));
    if (engineWords.contains(u"has no column named"))
        return QStringLiteral("Manca una colonna nell'archivio");
    if (engineWords.contains(u"syntax error") || engineWords.contains(u"unrecognized token"))
        return QStringLiteral("Errore di sintassi nell'istruzione");
    return QStringLiteral("Errore del database");
}

QString constraintWords(int code)
{
    switch (code) {
    case SQLITE_CONSTRAINT_NOTNULL:
        return QStringLiteral("Un campo obbligatorio è vuoto");
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return QStringLiteral("Esiste già un record con la stessa chiave");
    default:
        return QStringLiteral("Il valore non è ammesso dalla tabella");
    }
}

QString wordsFor(int code, const QString &engineWords)
{
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("L'archivio è in uso da un altro programma: riprovare tra poco");
    case SQLITE_FULL:
        return QStringLiteral("Il disco è pieno: la modifica non è stata salvata");
    case SQLITE_READONLY:
        return QStringLiteral("L'archivio è di sola lettura: la modifica non è stata salvata");
    case SQLITE_CORRUPT:
        return QStringLiteral("L'archivio è danneggiato");
    case SQLITE_NOTADB:
        return QStringLiteral("Il file non è un archivio");
    case SQLITE_CANTOPEN:
        return QStringLiteral("L'archivio non può essere aperto, o la sua cartella non può essere scritta");
    case SQLITE_IOERR:
        return QStringLiteral("Errore di lettura o scrittura del disco");
    case SQLITE_NOMEM:
        return QStringLiteral("Memoria insufficiente");
    case SQLITE_TOOBIG:
        return QStringLiteral("Il testo è troppo lungo");
    case SQLITE_CONSTRAINT:
        return constraintWords(code);
    case SQLITE_MISMATCH:
        return QStringLiteral("Il valore non è del tipo della colonna");
    default:
        return statementWords(engineWords);
    }
}

} // namespace

Failure engineFailure(int code, const QString &engineWords, const QString &statement)
{
    return Failure(FailureNumber::Engine, QStringLiteral("%1 (%2)").arg(wordsFor(code, engineWords), engineWords),
                   statement);
}

Failure engineFailure(sqlite3 *handle, int code, const QString &statement)
{
    return engineFailure(code, QString::fromUtf8(sqlite3_errmsg(handle)), statement);
}
