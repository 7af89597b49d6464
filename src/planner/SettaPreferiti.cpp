#include "planner/SettaPreferiti.h"

namespace {

const QString kSelect = QStringLiteral(
    "SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Preferito, "
    "Sostituisci.Categoria HAVING  Sostituisci.Preferito =True  AND  Sostituisci.Categoria = ");

}

void SettaPreferiti(ModNetServer &modulo, bool ContaPreferiti)
{
    Recordset rs;
    for (const QString &kind :
         {QStringLiteral("'Carne' or   Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Pesce'"),
          QStringLiteral("'Piatto unico'  "), QStringLiteral("'Panino - Pizza'  "),
          QStringLiteral("'Pasta - Minestra'  ")}) {
        rs.Open(kSelect + kind, modulo.dati());
        if (ContaPreferiti)
            static_cast<void>(rs.RecordCount());
        rs.Close();
    }
}
