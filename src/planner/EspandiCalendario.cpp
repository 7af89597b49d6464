#include "planner/EspandiCalendario.h"

#include "core/CopieDiSicurezza.h"
#include "core/Vocabulary.h"
#include "platform/text/Dates.h"
#include "sheet/SincronizzaKcal.h"

#include <QHash>

#include <array>
#include <vector>

namespace {

enum class Cibi
{
    Tutti,
    SoloIlPrimo
};

struct Portata
{
    QString campo; // of Menu
    QString pasto;
    Cibi cibi;
};

// This order, and not that of the columns of Menu, is the order of the rows of a day.
std::array<Portata, 10> Portate()
{
    return {{
        {"colazione", Pasto::Colazione, Cibi::Tutti},
        {"spuntino1", Pasto::Spuntino, Cibi::Tutti},
        {"Pranzo", Pasto::Pranzo, Cibi::Tutti},
        {"pane1", Pasto::Pranzo, Cibi::SoloIlPrimo},
        {"Contorno1", Pasto::Pranzo, Cibi::Tutti},
        {"spuntino2", Pasto::Spuntino, Cibi::Tutti},
        {"Cena", Pasto::Cena, Cibi::Tutti},
        {"contorno2", Pasto::Cena, Cibi::Tutti},
        {"pane2", Pasto::Cena, Cibi::SoloIlPrimo},
        {"spuntino3", Pasto::Spuntino, Cibi::Tutti},
    }};
}

struct Cibo
{
    Value Alimento, KC100gr, quantita, totale1, quantita2, totale2;
};

// The foods of each dish in name order, read at its first use and kept for the run.
class CibiDeiPiatti
{
public:
    explicit CibiDeiPiatti(Connection &connection) : m_connection(connection)
    {
        m_piatti.Open("Select * from Piatti order by Piatto", connection, Recordset::Access::ReadOnly);
        m_fields = {m_piatti.fieldIndex("Alimento"), m_piatti.fieldIndex("KC100gr"),   m_piatti.fieldIndex("quantita"),
                    m_piatti.fieldIndex("totale1"),  m_piatti.fieldIndex("quantita2"), m_piatti.fieldIndex("totale2")};
    }

    const std::vector<Cibo> &cibi(const QString &Piatto)
    {
        auto known = m_known.constFind(Piatto);
        if (known == m_known.constEnd())
            known = m_known.insert(Piatto, Leggi(Piatto));
        return *known;
    }

private:
    std::vector<Cibo> Leggi(const QString &Piatto)
    {
        m_piatti.Close();
        // The name goes in as it stands: one with an apostrophe breaks the statement, and that ends the expansion.
        m_piatti.Open("Select * from piatti where Piatto = '" + Piatto + "' order by Alimento", m_connection,
                      Recordset::Access::ReadOnly);
        std::vector<Cibo> cibi;
        cibi.reserve(m_piatti.RecordCount());
        for (int row = 0; row < m_piatti.RecordCount(); ++row)
            cibi.push_back({m_piatti.valueAt(row, m_fields[0]), m_piatti.valueAt(row, m_fields[1]),
                            m_piatti.valueAt(row, m_fields[2]), m_piatti.valueAt(row, m_fields[3]),
                            m_piatti.valueAt(row, m_fields[4]), m_piatti.valueAt(row, m_fields[5])});
        return cibi;
    }

    Connection &m_connection;
    Recordset m_piatti;
    std::array<int, 6> m_fields{};
    QHash<QString, std::vector<Cibo>> m_known;
};

// SchedaPranzo, open to be added to.
class SchedaInScrittura
{
public:
    explicit SchedaInScrittura(ModNetServer &modulo) : m_modulo(modulo)
    {
        m_scheda.Open("Select * from SchedaPranzo", modulo.dati(), Recordset::Access::AppendOnly);
        static const std::array<QString, 11> names{"DataInserimento", "pranzocenaspuntino", "Piatto",     "Alimento",
                                                   "KC100gr",         "quantita",           "Kcnominale", "totale1",
                                                   "quantita2",       "Kcnominale2",        "totale2"};
        for (std::size_t i = 0; i < names.size(); ++i)
            m_fields.at(i) = m_scheda.fieldIndex(names.at(i));
    }

    void Aggiungi(const QString &giorno, const QString &pasto, const QString &Piatto, const Cibo &cibo)
    {
        m_scheda.AddNew();
        m_scheda.setValue(m_fields[0], giorno);
        m_scheda.setValue(m_fields[1], pasto);
        m_scheda.setValue(m_fields[2], Piatto);
        m_scheda.setValue(m_fields[3], cibo.Alimento);
        m_scheda.setValue(m_fields[4], cibo.KC100gr);
        m_scheda.setValue(m_fields[5], cibo.quantita);
        m_scheda.setValue(m_fields[6], m_modulo.KcalPrimaPersona);
        m_scheda.setValue(m_fields[7], cibo.totale1);
        m_scheda.setValue(m_fields[8], cibo.quantita2);
        m_scheda.setValue(m_fields[9], m_modulo.KcalSecondaPersona);
        m_scheda.setValue(m_fields[10], cibo.totale2);
        m_scheda.Update();
    }

private:
    ModNetServer &m_modulo;
    Recordset m_scheda;
    std::array<int, 11> m_fields{};
};

class Espansione
{
public:
    Espansione(ModNetServer &modulo, const SceltaEspansione &scelta, FormPianificatore &form)
        : m_modulo(modulo), m_scelta(scelta), m_form(form)
    {
    }

    // False where the range has no row of Menu.
    bool ApriMenu()
    {
        m_menu.Open("SELECT Menu.DataMenu, Menu.Colazione, Menu.pane1, Menu.pane2, Menu.Spuntino1, Menu.Pranzo, "
                    "Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento "
                    "From Menu  WHERE (((Menu.DataMenu)>=#" +
                        DataPerIstruzione(CDate(m_scelta.Text3)) + "# And (Menu.DataMenu)<=#" +
                        DataPerIstruzione(CDate(m_scelta.Text4)) + "#));",
                    m_modulo.dati(), Recordset::Access::ReadOnly);
        return m_menu.RecordCount() != 0;
    }

    void run()
    {
        GruppoScritture gruppo(m_modulo.dati());
        CancellaSchede();
        SchedaInScrittura scheda(m_modulo);
        CibiDeiPiatti cibi(m_modulo.dati());
        const std::array<Portata, 10> portate = Portate();
        const int data = m_menu.fieldIndex("DataMenu");
        while (!m_menu.Eof()) {
            const QString giorno = TestoData(m_menu.value(data).date());
            m_form.setCaption("Elaborazione - Inserimento Menu del " + giorno + " -  fino alla data " + m_scelta.Text4);
            for (const Portata &portata : portate)
                ScriviPortata(giorno, portata, cibi, scheda);
            AvanzaBarra(m_modulo.schermate.barra());
            if (m_scelta.Check12)
                SincronizzaKcal(m_modulo, giorno, true, true);
            m_form.ridisegna();
            m_menu.MoveNext();
        }
        gruppo.close();
    }

private:
    void CancellaSchede()
    {
        m_modulo.dati().Execute(
            "DELETE SchedaPranzo.*, SchedaPranzo.dataInserimento, CDate([SchedaPranzo].[dataInserimento]) From "
            "SchedaPranzo  WHERE (((CDate([SchedaPranzo].[dataInserimento]))>=CDate('" +
            m_scelta.Text3 + "') And (CDate([SchedaPranzo].[dataInserimento]))<=CDate('" + m_scelta.Text4 + "')));");
    }

    void ScriviPortata(const QString &giorno, const Portata &portata, CibiDeiPiatti &piatti, SchedaInScrittura &scheda)
    {
        const Value Piatto = m_menu.value(portata.campo);
        if (Piatto.isNull())
            return;
        const QString nome = Piatto.text();
        for (const Cibo &cibo : piatti.cibi(nome)) {
            scheda.Aggiungi(giorno, portata.pasto, nome, cibo);
            if (portata.cibi == Cibi::SoloIlPrimo)
                break;
        }
    }

    ModNetServer &m_modulo;
    const SceltaEspansione &m_scelta;
    FormPianificatore &m_form;
    Recordset m_menu;
};

bool Conferma(ModNetServer &modulo, const SceltaEspansione &scelta)
{
    return modulo.mondo.dialoghi.MsgBox("Vuoi generare i menu dalla data " + scelta.Text3 + " alla data " +
                                            scelta.Text4,
                                        MsgFlags::YesNoInformation, "Generazione Menu") == MsgAnswer::Si;
}

} // namespace

void mnuGenera(ModNetServer &modulo, const SceltaEspansione &scelta, FormPianificatore &form)
{
    form.setCaption("GENERA nella tabella SCHEDAPRANZO i menu creati nella tabella MENU");
    if (!Conferma(modulo, scelta))
        return;
    form.setBarraVisibile(true);
    Espansione espansione(modulo, scelta, form);
    if (!espansione.ApriMenu()) {
        modulo.mondo.dialoghi.MsgBox("Non hai ancora generato i menu da compilare", MsgFlags::Critical, "KO");
        form.mnuCrea();
        return;
    }
    CopiaDiSicurezza(modulo); // hand-made changes of the range are about to go
    {
        const PuntatoreLibero pointer(modulo.mondo.schermo); // that the balancing leaves busy
        espansione.run();
    }
    form.setBarraVisibile(false);
    modulo.mondo.dialoghi.MsgBox("Elaborazione effettuata con successo !!", MsgFlags::Information, "OK");
    form.setCaption("Generazione nuovi menu");
}
