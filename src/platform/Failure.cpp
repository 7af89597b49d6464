#include "platform/Failure.h"

namespace {

QString usualWords(FailureNumber number)
{
    switch (number) {
    case FailureNumber::TypeMismatch:
        return QStringLiteral("Tipo non corrispondente");
    case FailureNumber::FileNotFound:
        return QStringLiteral("File non trovato");
    case FailureNumber::InputPastEnd:
        return QStringLiteral("Lettura oltre la fine del file");
    case FailureNumber::PathAccess:
        return QStringLiteral("Non si può scrivere il file o la cartella");
    case FailureNumber::PathNotFound:
        return QStringLiteral("Cartella non trovata");
    case FailureNumber::InvalidNull:
        return QStringLiteral("Manca un valore (valore nullo non valido)");
    case FailureNumber::NoCurrentRow:
        return QStringLiteral("Non c'è nessun record corrente");
    case FailureNumber::NotPermitted:
        return QStringLiteral("Questo elenco è di sola lettura");
    case FailureNumber::NoSuchField:
        return QStringLiteral("Il campo richiesto non esiste");
    case FailureNumber::ObjectClosed:
        return QStringLiteral("Operazione non consentita su un elenco chiuso");
    case FailureNumber::ObjectOpen:
        return QStringLiteral("Operazione non consentita su un elenco già aperto");
    case FailureNumber::ConnectionClosed:
        return QStringLiteral("Il collegamento al database non è aperto");
    case FailureNumber::Cancelled:
        return QStringLiteral("L'operazione è stata annullata");
    case FailureNumber::RowChanged:
        return QStringLiteral("Il record è stato modificato o cancellato nel frattempo: "
                              "la modifica non è stata salvata");
    case FailureNumber::LoginRefused:
        return QStringLiteral("Password non valida");
    case FailureNumber::Engine:
        return QStringLiteral("Errore del database");
    }
    return QStringLiteral("Errore");
}

} // namespace

Failure::Failure(FailureNumber number, const QString &words, const QString &statement)
    : m_number(number), m_words(words), m_statement(statement), m_what(words.toUtf8())
{
}

Failure Failure::usual(FailureNumber number, const QString &detail)
{
    const QString words = usualWords(number);
    return Failure(number, detail.isEmpty() ? words : words + QStringLiteral(": ") + detail);
}
