#include "shell/ControllaMessaggi.h"

#include <optional>

namespace {

const QString kTitolo = QStringLiteral("Messaggio Amministratore di Rete");
const QString kIstruzione =
    QStringLiteral("SELECT Last(Messaggi.ID) AS ID, Last(Messaggi.Messaggio) AS Messaggio, "
                   "Last([messaggi].[TipoBlocco]) AS TipoBlocco, Last(Messaggi.data) AS data FROM Messaggi;");

// A text as a yes/no value; nothing where it is none.
std::optional<bool> booleano(const QString &text)
{
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("vero"))
        return true;
    if (word == QLatin1String("false") || word == QLatin1String("falso"))
        return false;
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    return isNumber ? std::optional<bool>(number != 0) : std::nullopt;
}

void mostraAvviso(ModNetServer &modulo, const QString &message)
{
    const QString text = message.toUpper() + QStringLiteral("\r\rMettersi in contatto con Tesmo Lorvani\r") +
                         QStringLiteral("Interno telefonico: chiedere al centralino");
    modulo.mondo.dialoghi.MsgBox(text, MsgFlags::Exclamation, kTitolo);
    // Only a yes/no text is remembered, so an ordinary notice of kind 0 shows again at each check.
    if (const std::optional<bool> seen = booleano(message))
        modulo.MessaggioVisto = *seen;
}

[[noreturn]] void ferma(ModNetServer &modulo, const QString &message)
{
    modulo.mondo.dialoghi.MsgBox(message, MsgFlags::Critical, kTitolo);
    if (modulo.ConnessioneDati)
        modulo.ConnessioneDati->Close();
    if (modulo.ConnessioneSistema)
        modulo.ConnessioneSistema->Close();
    TerminaProgramma();
}

// An aggregate of a day column comes in the form in which the archive holds it.
QDate giorno(const Value &value)
{
    const QDate stored = QDate::fromString(value.text(), Qt::ISODate);
    return stored.isValid() ? stored : value.date();
}

void controlla(ModNetServer &modulo)
{
    if (!modulo.ConnessioneSistema)
        return;
    modulo.RsComune = std::make_shared<Recordset>();
    Recordset &rows = *modulo.RsComune;
    rows.Open(kIstruzione, *modulo.ConnessioneSistema);
    if (rows.RecordCount() == 1) {
        const QString message = rows.value(QStringLiteral("Messaggio")).text();
        const double kind = rows.value(QStringLiteral("TipoBlocco")).number();
        if (kind == 2) // whatever its day
            ferma(modulo, message);
        const bool today = giorno(rows.value(QStringLiteral("data"))) == modulo.mondo.orologio.today();
        const bool seen = booleano(message) == std::optional<bool>(modulo.MessaggioVisto);
        if (today && (kind == 1 || (kind == 0 && !seen)))
            mostraAvviso(modulo, message);
    }
    rows.Close();
}

} // namespace

void ControllaMessaggi(ModNetServer &modulo)
{
    try {
        controlla(modulo);
    } catch (const Failure &) {
        // A system archive that cannot be read has no message for anybody.
    }
}
