#include "catalogue/NuovoPiatto.h"

namespace {

void tell(ModNetServer &modulo, const QString &text)
{
    modulo.mondo.dialoghi.MsgBox(text, MsgFlags::Information, "OK");
}

QString quoted(const QString &text)
{
    return '"' + text + '"';
}

void insertPair(Connection &connection, const QString &alimento, const QString &sostituisci)
{
    connection.Execute("INSERT INTO GruppoPiattiSostituiti ( alimento, sostituisci ) SELECT '" + alimento +
                       "' AS alimento, '" + sostituisci + "'AS sostituisci;");
}

void linkBothWays(Connection &connection, const QString &one, const QString &other)
{
    insertPair(connection, one, other);
    insertPair(connection, other, one);
}

void openGroup(Recordset &group, Connection &connection, const QString &alimento)
{
    group.Open("Select * from gruppopiattisostituiti where Alimento = '" + alimento + "'", connection);
}

// With each alternative of the set, from the current row on.
void linkAlternatives(Recordset &group, Connection &connection, const QString &titolo)
{
    for (; !group.Eof(); group.MoveNext())
        linkBothWays(connection, group.value("sostituisci").text(), titolo);
}

} // namespace

bool ConfermaNuovoPiatto(ModNetServer &modulo, const DatiNuovoPiatto &dati)
{
    const QString question = "\r\nConfermi l'inserimento del nuovo piatto " + quoted(dati.titolo.toUpper()) +
                             "\r\nCon classificazione TIPO = " + quoted(dati.tipo) + "Categoria " +
                             quoted(dati.categoria) + "(Piatto in sostituzione " + quoted(dati.sostituito.toUpper()) +
                             ")";
    return modulo.mondo.dialoghi.MsgBox(question, MsgFlags::YesNoInformation, "Inserimento nuovo piatto") ==
           MsgAnswer::Si;
}

void InserisciNuovoPiatto(ModNetServer &modulo, const DatiNuovoPiatto &dati)
{
    modulo.dati().Execute(
        "INSERT INTO Sostituisci ( Piatto, KCalOndira, KCalTesmo, tipo, Categoria, Preferito ) SELECT '" + dati.titolo +
        "' AS piatto, 0 AS KCalOndira, 0 AS KCalTesmo, '" + dati.tipo + "' AS tipo, '" + dati.categoria +
        "' AS Categoria, False AS Preferito;");
}

void CollegaAlGruppo(ModNetServer &modulo, const DatiNuovoPiatto &dati)
{
    Recordset group;
    openGroup(group, modulo.dati(), dati.sostituito);
    if (group.Eof())
        return;
    linkBothWays(modulo.dati(), group.value("Alimento").text(), dati.titolo);
    linkAlternatives(group, modulo.dati(), dati.titolo);
}

void CollegaAlleAlternative(ModNetServer &modulo, const DatiNuovoPiatto &dati)
{
    Recordset group;
    openGroup(group, modulo.dati(), dati.sostituito);
    linkAlternatives(group, modulo.dati(), dati.titolo);
}

void CancellaDoppione(ModNetServer &modulo)
{
    Connection &connection = modulo.dati();
    Recordset doubles;
    doubles.Open("SELECT First(GruppoPiattiSostituiti.[sostituisci]) AS sostituisciCampo, "
                 "First(GruppoPiattiSostituiti.[alimento]) AS alimentoCampo, "
                 "Count(GruppoPiattiSostituiti.[sostituisci]) AS NumDuplicati, GruppoPiattiSostituiti.dataInserimento, "
                 "First(GruppoPiattiSostituiti.ID) AS PrimoDiID From GruppoPiattiSostituiti"
                 " GROUP BY GruppoPiattiSostituiti.[sostituisci], GruppoPiattiSostituiti.[alimento], "
                 "GruppoPiattiSostituiti.dataInserimento"
                 " HAVING (((Count(GruppoPiattiSostituiti.[sostituisci]))>1) AND "
                 "((Count(GruppoPiattiSostituiti.[alimento]))>1));",
                 connection);
    if (doubles.Eof()) {
        tell(modulo, "Non ci sono record DOPPI nella tabella GruppoPiattiSostituiti ");
        return;
    }
    for (; !doubles.Eof(); doubles.MoveNext())
        connection.Execute("DELETE GruppoPiattiSostituiti.ID FROM GruppoPiattiSostituiti WHERE "
                           "(((GruppoPiattiSostituiti.ID)=" +
                           doubles.value("PrimoDiID").text() + "));");
    tell(modulo, "Cancellazione record doppioni su tabella GruppoPiattiSostituiti effettuata con successo");
}
