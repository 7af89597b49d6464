#include "catalogue/AggiustaCasini.h"

#include "core/Helpers.h"
#include "platform/text/Dates.h"

#include <QTime>

namespace {

constexpr int kDayLength = 10; // dd/mm/yyyy

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
    // Of a column of unknown type it is not known what would be too much.
    return kind == u'Z' ? Aggiustamento::Passa : Aggiustamento::FermaEccessivo;
}
