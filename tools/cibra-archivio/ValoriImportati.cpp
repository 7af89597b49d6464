#include "ValoriImportati.h"

#include "platform/Failure.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

using Esito = ValoreImportato::Esito;

constexpr int kDigits = 15; // that a double always holds
constexpr qint64 kSecondsOfDay = 86400;
constexpr double kWholeLimit = 9007199254740992.0; // beyond it a double skips whole numbers

ValoreImportato exact(const StoredValue &value)
{
    return {value, Esito::Esatto};
}

ValoreImportato converted(const StoredValue &value)
{
    return {value, Esito::Convertito};
}

ValoreImportato kept(const QString &text)
{
    return {text, Esito::Rimasto};
}

ValoreImportato lost()
{
    return {{}, Esito::Perso};
}

// The number that a person sees in a single: 0.1, not 0.100000001490116.
double shortest(float number)
{
    for (int digits = 6; digits <= 9; ++digits) {
        const double candidate = QByteArray::number(double(number), 'g', digits).toDouble();
        if (float(candidate) == number)
            return candidate;
    }
    return double(number);
}

ValoreImportato whole(double number, const QString &text)
{
    if (number == std::floor(number) && std::abs(number) < kWholeLimit)
        return converted(qint64(number));
    return kept(text);
}

// The day and time, to the second; invalid where the number is none of the years 100 to 9999.
QDateTime momentOf(DataMdb date)
{
    constexpr double kFirst = -657434; // 01/01/0100
    constexpr double kBehindLast = 2958466;
    if (!(date.giorni > kFirst - 1 && date.giorni < kBehindLast))
        return {};
    const double days = std::trunc(date.giorni);
    const auto seconds = qint64(std::llround(std::abs(date.giorni - days) * double(kSecondsOfDay)));
    const QDate day = QDate(1899, 12, 30).addDays(qint64(days) + seconds / kSecondsOfDay);
    return QDateTime(day, QTime(0, 0).addSecs(int(seconds % kSecondsOfDay)), Qt::UTC);
}

// Turns a value into one of the target type.
struct Importer
{
    TipoArchivio target;

    ValoreImportato operator()(std::monostate) const
    {
        return target == TipoArchivio::SiNo ? exact(qint64(0)) : exact({});
    }

    ValoreImportato operator()(qint64 number) const
    {
        switch (target) {
        case TipoArchivio::Intero:
            return exact(number);
        case TipoArchivio::Numero:
            return exact(double(number));
        case TipoArchivio::SiNo:
            return converted(qint64(number != 0));
        case TipoArchivio::Testo:
        case TipoArchivio::Memo:
            return converted(QString::number(number));
        default:
            return kept(QString::number(number));
        }
    }

    ValoreImportato operator()(double number) const
    {
        if (std::isnan(number))
            return lost();
        switch (target) {
        case TipoArchivio::Numero:
            return exact(number);
        case TipoArchivio::Intero:
            return whole(number, TestoNumero(number));
        case TipoArchivio::SiNo:
            return converted(qint64(number != 0));
        case TipoArchivio::Testo:
        case TipoArchivio::Memo:
            return converted(TestoNumero(number));
        default:
            return kept(TestoNumero(number));
        }
    }

    ValoreImportato operator()(float number) const { return (*this)(shortest(number)); }

    ValoreImportato operator()(const DecimaleMdb &decimal) const
    {
        if (target == TipoArchivio::Testo || target == TipoArchivio::Memo)
            return exact(cifre(decimal));
        ValoreImportato result = (*this)(decimal.cifre.toDouble());
        if (result.esito == Esito::Esatto && !staInUnNumero(decimal))
            result.esito = Esito::Arrotondato;
        return result;
    }

    ValoreImportato operator()(DataMdb date) const
    {
        const QDateTime moment = momentOf(date);
        if (!moment.isValid())
            return lost();
        const bool hasTime = moment.time() != QTime(0, 0);
        if (target == TipoArchivio::Data)
            return exact(
                moment.toString(hasTime ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("yyyy-MM-dd")));
        const QString text = hasTime ? TestoDataOra(moment) : TestoData(moment.date());
        return target == TipoArchivio::Testo || target == TipoArchivio::Memo ? converted(text) : kept(text);
    }

    ValoreImportato operator()(bool yes) const
    {
        switch (target) {
        case TipoArchivio::SiNo:
            return exact(qint64(yes));
        case TipoArchivio::Intero:
            return converted(qint64(yes ? 1 : 0));
        case TipoArchivio::Numero:
            return converted(yes ? 1.0 : 0.0);
        default:
            return converted(yes ? QStringLiteral("Vero") : QStringLiteral("Falso"));
        }
    }

    ValoreImportato operator()(const QString &text) const
    {
        switch (target) {
        case TipoArchivio::Testo:
        case TipoArchivio::Memo:
            return exact(text);
        case TipoArchivio::Data: {
            const QDate day = dayFromText(text);
            return day.isValid() ? converted(day.toString(Qt::ISODate)) : kept(text);
        }
        case TipoArchivio::Numero:
        case TipoArchivio::Intero:
            return number(text);
        default:
            return kept(text);
        }
    }

    ValoreImportato number(const QString &text) const
    {
        try {
            const double value = NumeroCampo(text);
            return target == TipoArchivio::Intero ? whole(value, text) : converted(value);
        } catch (const Failure &) {
            return kept(text); // a text that is no number stays what it is, and the report tells of it
        }
    }

    ValoreImportato operator()(const QByteArray &bytes) const
    {
        return {bytes, target == TipoArchivio::Byte ? Esito::Esatto : Esito::Rimasto};
    }
};

} // namespace

TipoArchivio tipoArchivio(ColumnType type)
{
    switch (type) {
    case ColumnType::Long:
        return TipoArchivio::Intero;
    case ColumnType::Number:
        return TipoArchivio::Numero;
    case ColumnType::Date:
        return TipoArchivio::Data;
    case ColumnType::Boolean:
        return TipoArchivio::SiNo;
    case ColumnType::Memo:
        return TipoArchivio::Memo;
    case ColumnType::Text:
        break;
    }
    return TipoArchivio::Testo;
}

TipoArchivio tipoArchivio(TipoMdb type)
{
    switch (type) {
    case TipoMdb::SiNo:
        return TipoArchivio::SiNo;
    case TipoMdb::Byte:
    case TipoMdb::Intero:
    case TipoMdb::InteroLungo:
        return TipoArchivio::Intero;
    case TipoMdb::Valuta:
    case TipoMdb::Singola:
    case TipoMdb::Doppia:
    case TipoMdb::Decimale:
        return TipoArchivio::Numero;
    case TipoMdb::Data:
        return TipoArchivio::Data;
    case TipoMdb::Binario:
    case TipoMdb::Ole:
        return TipoArchivio::Byte;
    case TipoMdb::Memo:
        return TipoArchivio::Memo;
    case TipoMdb::Testo:
    case TipoMdb::Guid:
        break;
    }
    return TipoArchivio::Testo;
}

ValoreImportato valoreImportato(const ValoreMdb &value, TipoArchivio target)
{
    return std::visit(Importer{target}, value);
}

QString cifre(const DecimaleMdb &decimal)
{
    QString digits = decimal.cifre;
    if (!digits.contains(u'.'))
        return digits;
    while (digits.endsWith(u'0'))
        digits.chop(1);
    if (digits.endsWith(u'.'))
        digits.chop(1);
    return digits;
}

bool staInUnNumero(const DecimaleMdb &decimal)
{
    const QString digits = cifre(decimal);
    return std::count_if(digits.cbegin(), digits.cend(), [](QChar sign) { return sign.isDigit(); }) <= kDigits;
}
