#include "planner/InsiemiPiatti.h"

#include <array>

namespace {

using Insieme = std::unique_ptr<Recordset> InsiemiPiatti::*;

constexpr int kTemplates = 7;

// The numbered breakfasts and snacks stand for fixed meals and never enter a menu.
QString TuttiMenoINumerati(const QString &tipo, const QString &tipoComeScritto)
{
    QStringList pairs;
    for (int n = 1; n <= kTemplates; ++n)
        pairs << QStringLiteral("(((Sostituisci.Piatto)<>'%1 %2') AND ((Sostituisci.tipo)='%3'))")
                     .arg(tipo, QString::number(n), tipoComeScritto);
    return "SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo From Sostituisci WHERE " +
           pairs.join(" and ") + " order by Sostituisci.ordine;";
}

QString CatenaDeiNumerati()
{
    QStringList terms;
    for (const QString &tipo : {QStringLiteral("Colazione"), QStringLiteral("Spuntino")})
        for (int n = 1; n <= kTemplates; ++n)
            terms << QStringLiteral("(Sostituisci.Piatto)<>'%1 %2'").arg(tipo, QString::number(n));
    return terms.join(" And ");
}

const QString kNumerati = QStringLiteral("SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, "
                                         "Sostituisci.Preferito, Sostituisci.Ordine From Sostituisci WHERE ((");

QString ColazioniInOrdine()
{
    return ' ' + kNumerati + CatenaDeiNumerati() + ") AND ((Sostituisci.tipo)='Colazione')) order by Ordine, ID;";
}

QString SpuntiniInOrdine()
{
    return kNumerati + CatenaDeiNumerati() + ") AND ((Sostituisci.tipo)='Spuntino'))  order by Ordine, ID;";
}

struct AlCaricamento
{
    Insieme insieme;
    QString statement;
};

const QString kCategoria = QStringLiteral("SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, "
                                          "Sostituisci.Categoria From Sostituisci WHERE ");

std::array<AlCaricamento, 10> IstruzioniAlCaricamento()
{
    return {{
        {&InsiemiPiatti::ColazioneRs, TuttiMenoINumerati("Colazione", "colazione")},
        {&InsiemiPiatti::SpuntinoRs, TuttiMenoINumerati("Spuntino", "Spuntino")},
        {&InsiemiPiatti::CarneRs, kCategoria + "(((Sostituisci.Categoria)='Carne')) order by Sostituisci.ordine;"},
        {&InsiemiPiatti::PesceRs, kCategoria + "(((Sostituisci.Categoria)='Pesce')) order by Sostituisci.ordine;"},
        {&InsiemiPiatti::PaninoRs,
         kCategoria + "(((Sostituisci.Categoria)='Panino - Pizza')) order by Sostituisci.ordine;"},
        {&InsiemiPiatti::PastaRs, kCategoria + "  Sostituisci.Categoria ='Pasta - Minestra'  ;"},
        {&InsiemiPiatti::PiattoUnicoRs, kCategoria + "  Sostituisci.Categoria ='Piatto unico'  ;"},
        {&InsiemiPiatti::ContornoRs,
         kCategoria + "(((Sostituisci.Categoria)='Contorno')) order by Sostituisci.ordine;"},
        {&InsiemiPiatti::menuRs,
         "SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, sostituisci.Categoria FROM "
         "Sostituisci WHERE (((Sostituisci.tipo)='menu')) order by Sostituisci.ordine;"},
        {&InsiemiPiatti::PaneRs,
         "SELECT Sostituisci.Id, Sostituisci.ordine, Sostituisci.Piatto, Sostituisci.tipo FROM Sostituisci WHERE "
         "(((Sostituisci.categoria)='Pane')) order by Sostituisci.ordine;"},
    }};
}

struct Preferiti
{
    Insieme insieme;
    QString preferiti;
    QString tutti;
};

const QString kInOrdine = QStringLiteral("SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, "
                                         "Sostituisci.Ordine From Sostituisci WHERE ");
const QString kMenuInOrdine =
    QStringLiteral("SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  "
                   "sostituisci.Categoria  FROM Sostituisci WHERE ");

std::array<Preferiti, 7> IstruzioniDeiPreferiti()
{
    return {{
        {&InsiemiPiatti::CarneRs,
         kInOrdine + " Preferito = true and   (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;",
         kInOrdine + "  (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;"},
        {&InsiemiPiatti::PesceRs,
         kInOrdine + " Preferito = true and   (((Sostituisci.Categoria)='Pesce'))  order by Ordine, ID;",
         kInOrdine + "  (((Sostituisci.Categoria)='Pesce')) order by Ordine, ID;"},
        {&InsiemiPiatti::PaninoRs,
         kInOrdine + "  Preferito = true and  (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;",
         kInOrdine + " (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;"},
        {&InsiemiPiatti::PastaRs,
         kInOrdine + "  Preferito = true and  Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;",
         kInOrdine + "Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;"},
        {&InsiemiPiatti::PiattoUnicoRs,
         kInOrdine + " Preferito = true and   Sostituisci.Categoria ='Piatto unico'  order by Ordine ;",
         kInOrdine + "Sostituisci.Categoria ='Piatto unico'  order by Ordine ;"},
        {&InsiemiPiatti::ContornoRs, kInOrdine + "  Preferito = true and  (((Sostituisci.Categoria)='Contorno'));",
         kInOrdine + "(((Sostituisci.Categoria)='Contorno')) order by Ordine, ID;"},
        {&InsiemiPiatti::menuRs,
         kMenuInOrdine + "  Preferito = true and  (((Sostituisci.tipo)='menu')) order by Ordine, ID;",
         kMenuInOrdine + "(((Sostituisci.tipo)='menu'))  order by Ordine, ID;"},
    }};
}

} // namespace

void InsiemiPiatti::Apri(Connection &connection)
{
    for (const AlCaricamento &riga : IstruzioniAlCaricamento()) {
        auto &rs = this->*riga.insieme;
        rs = std::make_unique<Recordset>();
        rs->Open(riga.statement, connection);
    }
}

void InsiemiPiatti::SoloPreferiti(Connection &connection)
{
    connection.Execute("UPDATE Sostituisci SET Sostituisci.Ordine = 0;");
    ColazioneRs = std::make_unique<Recordset>();
    ColazioneRs->Open(ColazioniInOrdine(), connection);
    SpuntinoRs = std::make_unique<Recordset>();
    SpuntinoRs->Open(SpuntiniInOrdine(), connection);
    for (const Preferiti &riga : IstruzioniDeiPreferiti()) {
        auto &rs = this->*riga.insieme;
        rs = std::make_unique<Recordset>();
        rs->Open(riga.preferiti, connection);
        if (rs->RecordCount() == 0) {
            rs->Close();
            rs->Open(riga.tutti, connection);
        }
    }
}
