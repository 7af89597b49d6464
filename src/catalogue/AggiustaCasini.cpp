#include "catalogue/AggiustaCasini.h"

#include "core/Helpers.h"
#include "platform/text/Dates.h"

#include <QTime>

namespace {

constexpr int kStringType = 8; // of any text
constexpr int kDayLength = 10; // dd/mm/yyyy

// The value type that a kind of column stands for; 0 where it stands for none.
int valueTypeOf(QChar kind)
{
    switch (kind.unicode()) {
    case 'B':
        return 17;
    case 'I':
        return 2;
    case 'L':
        return 3;
    case 'S':
        return 4;
    case 'D':
        return 5;
    case 'C':
        return 6;
    default:
        return 0;
    }
}

// A day, with a time behind it or without.
bool isDate(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QString time = trimmed.section(u' ', 1);
    const bool timeReads = time.isEmpty() || QTime::fromString(time, QStringLiteral("H:mm")).isValid() ||
                           QTime::fromString(time, QStringLiteral("H:mm:ss")).isValid();
    return timeReads && dayFromText(trimmed.section(u' ', 0, 0)).isValid();
}

Aggiustamento ofLength(const QString &testo, int size)
{
    if (testo.size() <= size)
        return Aggiustamento::Passa;
    if (!isDate(testo))
        return Aggiustamento::Taglia;
    return testo.size() > kDayLength ? Aggiustamento::FermaData : Aggiustamento::Passa;
}

} // namespace

Aggiustamento DecidiAggiustamento(const ColonnaTabella &colonna, const QString &testo)
{
    const QChar kind = colonna.tipo.at(1);
    if (kind == u'T' || kind == u'M' || !SoloNumeri(testo))
        return ofLength(testo, colonna.dimensione);
    const bool passes = kind == u'Z' || valueTypeOf(kind) == kStringType;
    return passes ? Aggiustamento::Passa : Aggiustamento::FermaEccessivo;
}
