#include "planner/Preferiti.h"

namespace {

constexpr int kTipi = 3; // Colazione, Menu, Spuntino

const QString kSenzaGiorni = QStringLiteral(
    "Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3' "
    " and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto "
    "<>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7' "
    " and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino "
    "3' "
    " and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino "
    "6' AND Sostituisci.Piatto <>'Spuntino 7'");

const QString kColonne =
    QStringLiteral("SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM "
                   "Sostituisci ");

// Blanks are what separates words of a name, so other white space counts as a text.
bool isBlank(const QString &text)
{
    return text.count(u' ') == text.size();
}

bool nessunPreferito(ModNetServer &modulo)
{
    modulo.mondo.dialoghi.MsgBox(
        "Non sono stati selezionati nessun preferito nelle categorie Colazione, Menu, Spuntino \n"
        "- Seleziona dal menu generale ' Modifica menu Preferiti '",
        MsgFlags::Critical, "Verifica KO!!");
    return false;
}

} // namespace

QString QueryPreferiti(const QString &tipo, const QString &categoria)
{
    if (isBlank(tipo) && isBlank(categoria))
        return "Select Piatto, Tipo, Categoria, Preferito from Sostituisci Where " + kSenzaGiorni + " order by piatto";
    if (isBlank(categoria))
        return " SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria, Sostituisci.Preferito From "
               "Sostituisci WHERE   " +
               kSenzaGiorni + " AND  Sostituisci.tipo ='" + tipo + "' ;";
    if (isBlank(tipo))
        return kColonne + "WHERE (((Sostituisci.Categoria)='" + categoria + "')) and " + kSenzaGiorni +
               " ORDER BY Sostituisci.Piatto;";
    return "Select Piatto, Tipo, Categoria, Preferito from Sostituisci where Categoria = '" + categoria +
           "' and Tipo = '" + tipo + "' and " + kSenzaGiorni + " order by piatto";
}

QString QuerySoloPreferiti()
{
    return kColonne + "WHERE (((Sostituisci.Preferito)=True)) ORDER BY Sostituisci.Tipo;";
}

QString QueryTuttaLaTabella()
{
    return kColonne + " ORDER BY Sostituisci.Tipo;";
}

int ContaPreferiti(ModNetServer &modulo, const QString &query)
{
    Recordset rs;
    rs.Open(query, modulo.dati());
    rs.setFilter("preferito = true");
    return rs.RecordCount();
}

QStringList CategorieDelTipo(ModNetServer &modulo, const QString &tipo)
{
    Recordset rs;
    rs.Open("SELECT Sostituisci.tipo, Sostituisci.Categoria FROM Sostituisci GROUP BY Sostituisci.tipo, "
            "Sostituisci.Categoria HAVING (((Sostituisci.tipo)='" +
                tipo + "'));",
            modulo.dati());
    QStringList categorie;
    for (; !rs.Eof(); rs.MoveNext())
        categorie.append(rs.value("categoria").text());
    return categorie;
}

bool VerificaTipi(ModNetServer &modulo)
{
    Recordset rs;
    rs.Open("SELECT Sostituisci.Tipo From Sostituisci Where (((Sostituisci.Preferito) = True)) GROUP BY "
            "Sostituisci.Tipo ORDER BY Sostituisci.Tipo;",
            modulo.dati());
    const int n = rs.RecordCount();
    if (n == 0)
        return nessunPreferito(modulo);
    QString elenco = "\n";
    for (; !rs.Eof(); rs.MoveNext())
        elenco += ' ' + rs.value("tipo").text() + '\n';
    if (n == kTipi) {
        modulo.mondo.dialoghi.MsgBox("Ci sono tutti " + elenco + " Verifica OK!", MsgFlags::Information, "Verifica OK");
        return true;
    }
    modulo.mondo.dialoghi.MsgBox("I tipi di Menu sono COLAZIONE - MENU - SPUNTINO \n\n Ci sono solo \n" + elenco +
                                     "\n Verifica ne mancano " + QString::number(kTipi - n) + "  !!!",
                                 MsgFlags::Information, "Verifica KO");
    return false;
}
