#include "shell/TestiDeiPiatti.h"

#include "platform/text/Blanks.h"
#include "platform/text/Numbers.h"
#include "platform/text/TextFile.h"
#include "shell/RigheDelMemo.h"

#include <QFileInfo>

#include <vector>

namespace {

const QString kSeparatore(99, u'*');

void ScriviTesti(TextWriter &writer, Recordset &piatti, const QString &campo, const PiattoInCorso &inCorso)
{
    if (piatti.RecordCount() > 0)
        piatti.MoveFirst();
    for (; !piatti.Eof(); piatti.MoveNext()) {
        const QString Piatto = piatti.value("Piatto").text();
        inCorso(Piatto);
        writer.line({});
        writer.line(Piatto);
        writer.line({});
        writer.line(piatti.value(campo).text());
    }
}

// Both texts of all rows, the first person's first, and the file in the text viewer.
void ScriviFileDiScambio(ModNetServer &modulo, Recordset &piatti, const PiattoInCorso &inCorso)
{
    modulo.mondo.folder.makeFolder("\\prova\\TestiCibra");
    const QString path = FileDiScambio(modulo);
    TextWriter writer(path);
    ScriviTesti(writer, piatti, "sostituisci1100", inCorso);
    writer.line(kSeparatore);
    ScriviTesti(writer, piatti, "sostituisci1500", inCorso);
    writer.close();
    modulo.mondo.programmi.start(ProgramKind::TextViewer, path);
}

struct RigaAlimento
{
    QString Piatto;
    QString alimento;
    QString quantita; // "(80 gr.)"
    bool seconda = false;
};

// Reads the file of exchange line by line.
class LettoreTesti
{
public:
    explicit LettoreTesti(const QString &path) : m_name(QFileInfo(path).fileName()) {}

    void leggi(QString riga)
    {
        ++m_numero;
        riga.replace(u'\'', u' ');
        if (withoutBlanks(riga) == kSeparatore) // an editor may leave blanks behind
            m_seconda = true;
        else if (withoutBlanks(riga).isEmpty())
            leggiVuota();
        else if (RigaDiAlimento(riga))
            leggiAlimento(riga);
        else
            leggiPiatto(riga);
    }
    const std::vector<RigaAlimento> &righe() const { return m_righe; }

private:
    // The empty line right under a dish's name belongs to its heading; any other ends the dish.
    void leggiVuota()
    {
        if (!m_appenaNominato)
            m_Piatto.clear();
        m_appenaNominato = false;
    }

    void leggiPiatto(const QString &riga)
    {
        m_Piatto = riga;
        m_appenaNominato = true;
    }

    void leggiAlimento(const QString &riga)
    {
        const qsizetype parentesi = riga.indexOf(u'(');
        if (parentesi < 1)
            throw Failure(FailureNumber::TypeMismatch,
                          QStringLiteral("%1, riga %2: manca la quantità fra parentesi: %3")
                              .arg(m_name, QString::number(m_numero), riga));
        m_righe.push_back({m_Piatto, riga.mid(1, parentesi - 1), riga.mid(parentesi), m_seconda});
        m_appenaNominato = false;
    }

    QString m_name;
    int m_numero = 0; // of the line, from 1
    QString m_Piatto;
    bool m_appenaNominato = false;
    bool m_seconda = false; // behind the separator
    std::vector<RigaAlimento> m_righe;
};

std::vector<RigaAlimento> LeggiFileDiScambio(ModNetServer &modulo)
{
    const QString path = FileDiScambio(modulo);
    TextReader reader(path);
    LettoreTesti lettore(path);
    while (!reader.atEnd()) {
        modulo.RigaLetta = reader.line();
        lettore.leggi(modulo.RigaLetta);
    }
    return lettore.righe();
}

void ControllaTraguardi(const ModNetServer &modulo)
{
    for (const QString &Kcal : {modulo.KcalPrimaPersona, modulo.KcalSecondaPersona}) {
        if (withoutBlanks(Kcal).isEmpty())
            throw Failure(FailureNumber::TypeMismatch,
                          "Mancano le Kcal giornaliere delle due persone: inserisci prima l'anagrafica");
        static_cast<void>(NumeroDaTesto(Kcal));
    }
}

void AggiungiPrima(Recordset &alimenti, const RigaAlimento &riga, const QString &KcNominale)
{
    alimenti.AddNew();
    alimenti.setValue("Piatto", riga.Piatto);
    alimenti.setValue("Alimento", riga.alimento);
    alimenti.setValue("quantita", riga.quantita);
    alimenti.setValue("KcNominale", KcNominale);
    alimenti.Update();
}

void AggiornaSeconda(ModNetServer &modulo, const RigaAlimento &riga)
{
    const QString KcNominale2 = NumeroPerIstruzione(NumeroDaTesto(modulo.KcalSecondaPersona));
    modulo.dati().Execute("UPDATE Alimenti SET Alimenti.quantita2 = '" + riga.quantita + "', Alimenti.KcNominale2 = " +
                          KcNominale2 + " WHERE (((trim(Alimenti.Piatto))='" + withoutBlanks(riga.Piatto) +
                          "') AND ((trim(Alimenti.alimento))='" + withoutBlanks(riga.alimento) + "'));");
}

} // namespace

QString FileDiScambio(const ModNetServer &modulo)
{
    return modulo.mondo.folder.resolve("\\prova\\TestiCibra\\Piatti.txt");
}

void RapportoSenzaCorrispondenza(ModNetServer &modulo, const PiattoInCorso &inCorso)
{
    modulo.RsComune = std::make_shared<Recordset>();
    modulo.RsComune->Open("Nocorrispondenza", modulo.dati());
    ScriviFileDiScambio(modulo, *modulo.RsComune, inCorso);
    modulo.mondo.dialoghi.MsgBox("fatto", MsgFlags::Plain, {});
}

void EsportaTesti(ModNetServer &modulo, const PiattoInCorso &inCorso)
{
    Recordset piatti;
    piatti.Open("select * from Sostituisci order by piatto", modulo.dati());
    ScriviFileDiScambio(modulo, piatti, inCorso);
}

void ImportaTesti(ModNetServer &modulo)
{
    // What could stop it half way is looked at before the rows of the last import go.
    ControllaTraguardi(modulo);
    const std::vector<RigaAlimento> righe = LeggiFileDiScambio(modulo);
    GruppoScritture gruppo(modulo.dati());
    modulo.dati().Execute("Delete * from Alimenti");
    Recordset alimenti;
    alimenti.Open("Select * from Alimenti", modulo.dati(), Recordset::Access::AppendOnly);
    for (const RigaAlimento &riga : righe) {
        if (riga.seconda)
            AggiornaSeconda(modulo, riga);
        else
            AggiungiPrima(alimenti, riga, modulo.KcalPrimaPersona);
    }
    gruppo.close();
    modulo.mondo.dialoghi.MsgBox("terminato", MsgFlags::Plain, {});
}
