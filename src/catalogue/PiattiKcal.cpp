#include "catalogue/PiattiKcal.h"

QString IstruzionePiattiKcal()
{
    return QStringLiteral("SELECT Piatti.Piatto, Sum([piatti.kc100gr]/100*[piatti.quantita]) AS KC100grOndira, "
                          "Sum([piatti.kc100gr]/100*[piatti.quantita2]) AS KC100grTesmo"
                          " From Piatti  where piatti.piatto <> '' GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto;");
}
