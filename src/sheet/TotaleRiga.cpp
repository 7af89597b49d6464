#include "sheet/TotaleRiga.h"

#include "platform/text/Numbers.h"

std::optional<QString> TotaleRiga(const QString &kc100gr, const QString &quantita)
{
    const double portion = NumeroCampo(quantita);
    if (portion < 0)
        return std::nullopt;
    if (portion == 0)
        return QStringLiteral("0");
    return TestoNumero(NumeroCampo(kc100gr) / 100 * portion).replace(',', '.');
}
