#include "planner/GeneraMenuProvvisori.h"

#include "planner/CheckLog.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <cmath>

namespace {

constexpr int kCycle = 7; // days, counted from the first of the range

// All dishes of tipo menu but those of one category, for the days on which that kind is not due.
struct Complementi
{
    std::unique_ptr<Recordset> NoPesceRs;
    std::unique_ptr<Recordset> NoCarneRs;
    std::unique_ptr<Recordset> NoPiattoUnicoRs;
    std::unique_ptr<Recordset> NoPastaRs;
    std::unique_ptr<Recordset> NoPaninoRs;

    explicit Complementi(Connection &connection)
        : NoPesceRs(Apri(connection, "Categoria <> 'Pesce'")), NoCarneRs(Apri(connection, "Categoria <> 'Carne'")),
          NoPiattoUnicoRs(Apri(connection, "Categoria <> 'Piatto unico'")),
          NoPastaRs(Apri(connection, "Categoria <> 'Pasta - Minestra'")),
          NoPaninoRs(Apri(connection, "Categoria <> 'Panino - Pizza'"))
    {
    }

private:
    static std::unique_ptr<Recordset> Apri(Connection &connection, const QString &filter)
    {
        auto rs = std::make_unique<Recordset>();
        rs->Open("SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  "
                 "sostituisci.Categoria  FROM Sostituisci WHERE (((Sostituisci.tipo)='menu'))  order by Ordine, ID;",
                 connection);
        rs->setFilter(filter);
        return rs;
    }
};

// One kind of dish in a meal's choice: its check box, the frequency box that is read for it, and its two sets.
struct TipoDiPiatto
{
    int check;
    int freq;
    std::unique_ptr<Recordset> InsiemiPiatti::*insieme;
    std::unique_ptr<Recordset> Complementi::*complemento;
};

using Pasti = std::array<TipoDiPiatto, 5>;

constexpr Pasti kPranzo{{
    {1, 1, &InsiemiPiatti::PaninoRs, &Complementi::NoPaninoRs},
    {2, 2, &InsiemiPiatti::PastaRs, &Complementi::NoPastaRs},
    {8, 0, &InsiemiPiatti::PiattoUnicoRs, &Complementi::NoPiattoUnicoRs},
    {3, 3, &InsiemiPiatti::PesceRs, &Complementi::NoPesceRs},
    {7, 4, &InsiemiPiatti::CarneRs, &Complementi::NoCarneRs},
}};

// Panino\Pizza at dinner goes by the lunch box of its row; Freq(6) beside it is never read.
constexpr Pasti kCena{{
    {4, 1, &InsiemiPiatti::PaninoRs, &Complementi::NoPaninoRs},
    {9, 5, &InsiemiPiatti::PiattoUnicoRs, &Complementi::NoPiattoUnicoRs},
    {5, 7, &InsiemiPiatti::PastaRs, &Complementi::NoPastaRs},
    {6, 8, &InsiemiPiatti::PesceRs, &Complementi::NoPesceRs},
    {11, 9, &InsiemiPiatti::CarneRs, &Complementi::NoCarneRs},
}};

Value PrendiPiatto(Recordset &rs)
{
    Value Piatto = rs.value("Piatto");
    rs.MoveNext();
    if (rs.Eof())
        rs.MoveFirst();
    return Piatto;
}

class Generatore
{
public:
    Generatore(ModNetServer &modulo, InsiemiPiatti &insiemi, const SceltaMenu &scelta)
        : m_modulo(modulo), m_insiemi(insiemi), m_scelta(scelta), m_complementi(modulo.dati())
    {
    }

    void run()
    {
        Mescola();
        CancellaPeriodo();
        ApriMenu();
        Riavvolgi();
        ScriviGiorni();
    }

private:
    // From where the cursor stands: on a second run only the rows behind it get a new number.
    void Mescola()
    {
        Recordset &menuRs = *m_insiemi.menuRs;
        const int ordine = menuRs.fieldIndex("ordine");
        while (!menuRs.Eof()) {
            menuRs.setValue(ordine, std::floor(m_modulo.mondo.dado.next() * menuRs.RecordCount()));
            menuRs.Update();
            menuRs.MoveNext();
        }
        menuRs.Requery();
        menuRs.MoveFirst();
    }

    void CancellaPeriodo()
    {
        const QString from = DataPerIstruzione(CDate(m_scelta.Text1));
        const QString to = DataPerIstruzione(CDate(m_scelta.Text2), "/ ");
        m_modulo.dati().Execute("DELETE Menu.DataMenu From Menu WHERE (([menu].[DataMenu]>= #" + from +
                                "# And [menu].[DataMenu]<=#" + to + "#));");
    }

    void ApriMenu()
    {
        m_giorno = CDate(m_scelta.Text1);
        m_menu.Open("Select * from Menu ", m_modulo.dati(), Recordset::Access::AppendOnly);
        m_data = m_menu.fieldIndex("Datamenu");
        m_colazione = m_menu.fieldIndex("colazione");
        m_spuntini = {m_menu.fieldIndex("spuntino1"), m_menu.fieldIndex("spuntino2"), m_menu.fieldIndex("spuntino3")};
        m_pranzo = m_menu.fieldIndex("Pranzo");
        m_pane1 = m_menu.fieldIndex("pane1");
        m_cena = m_menu.fieldIndex("Cena");
        m_contorni = {m_menu.fieldIndex("Contorno1"), m_menu.fieldIndex("contorno2")};
        m_pane2 = m_menu.fieldIndex("pane2");
    }

    // Single dishes, sides and breads are left where they stand: their rotation goes on from run to run.
    void Riavvolgi()
    {
        for (const auto &insieme :
             {&InsiemiPiatti::SpuntinoRs, &InsiemiPiatti::ColazioneRs, &InsiemiPiatti::PaninoRs,
              &InsiemiPiatti::PastaRs, &InsiemiPiatti::menuRs, &InsiemiPiatti::CarneRs, &InsiemiPiatti::PesceRs}) {
            Recordset &rs = *(m_insiemi.*insieme);
            if (rs.RecordCount() > 0)
                rs.MoveFirst();
        }
    }

    void ScriviGiorni()
    {
        int d = 0;
        while (CDate(m_scelta.Text2) >= m_giorno) {
            m_menu.AddNew();
            m_menu.setValue(m_data, m_giorno);
            m_giorno = m_giorno.addDays(1);
            d = d % kCycle + 1;
            ScriviPasti(d);
            m_menu.Update();
        }
    }

    void ScriviPasti(int d)
    {
        m_menu.setValue(m_colazione, PrendiPiatto(*m_insiemi.ColazioneRs));
        for (const int spuntino : m_spuntini)
            m_menu.setValue(spuntino, PrendiPiatto(*m_insiemi.SpuntinoRs));
        m_menu.setValue(m_pranzo, PrendiPiatto(InsiemeDelPasto(kPranzo, d)));
        m_menu.setValue(m_pane1, PrendiPiatto(*m_insiemi.PaneRs));
        m_menu.setValue(m_cena, PrendiPiatto(InsiemeDelPasto(kCena, d)));
        for (const int contorno : m_contorni)
            m_menu.setValue(contorno, PrendiPiatto(*m_insiemi.ContornoRs));
        m_menu.setValue(m_pane2, PrendiPiatto(*m_insiemi.PaneRs));
    }

    // The first box that is on decides; the kind is due on the first f days of the cycle, with f = 0 on all.
    Recordset &InsiemeDelPasto(const Pasti &pasti, int d)
    {
        for (const TipoDiPiatto &tipo : pasti) {
            if (!m_scelta.Check.at(tipo.check))
                continue;
            const double f = NumeroDaTesto(m_scelta.Freq.at(tipo.freq));
            const bool due = f == 0 || (f > 0 && f >= d);
            return due ? *(m_insiemi.*tipo.insieme) : *(m_complementi.*tipo.complemento);
        }
        return *m_insiemi.menuRs;
    }

    ModNetServer &m_modulo;
    InsiemiPiatti &m_insiemi;
    const SceltaMenu &m_scelta;
    Complementi m_complementi; // opened before the shuffle, so they show the numbers of the run before
    Recordset m_menu;
    QDate m_giorno;
    int m_data = 0;
    int m_colazione = 0;
    std::array<int, 3> m_spuntini{};
    int m_pranzo = 0;
    int m_pane1 = 0;
    int m_cena = 0;
    std::array<int, 2> m_contorni{};
    int m_pane2 = 0;
};

// On a full disk the numbers of the shuffle are lost with the rest of the group, and the set must not go on with them.
// Where nothing is lost it comes out as it was, its cursor too.
void RileggiDopoUnGuasto(GruppoScritture &gruppo, Recordset &menuRs)
{
    try {
        gruppo.close();
    } catch (const Failure &) {
        // The failure that led here is the one to be told.
    }
    try {
        const int position = menuRs.AbsolutePosition();
        menuRs.Requery();
        if (position > 1)
            menuRs.Move(position - 1);
    } catch (const Failure &) {
        // The archive cannot even be read any more: the next run says so.
    }
}

} // namespace

void GeneraMenuProvvisori(ModNetServer &modulo, InsiemiPiatti &insiemi, const SceltaMenu &scelta)
{
    ScriviCheckLog(modulo, scelta);
    GruppoScritture gruppo(modulo.dati());
    try {
        if (scelta.Check[10])
            insiemi.SoloPreferiti(modulo.dati());
        Generatore(modulo, insiemi, scelta).run();
        gruppo.close();
    } catch (const Failure &) {
        RileggiDopoUnGuasto(gruppo, *insiemi.menuRs);
        throw;
    }
}

bool ChiediCompilazione(ModNetServer &modulo)
{
    return modulo.mondo.dialoghi.MsgBox("Elaborazione effettuata con successo!\n"
                                        "Adesso devo compilare i menu giornalieri per renderli visibili,\n"
                                        "Vuoi Procedere? ",
                                        MsgFlags::YesNoInformationDefaultNo, "OK") == MsgAnswer::Si;
}
