#include "road/RoadWorld.h"

#include "core/SenzaFinestre.h"
#include "CreaArchivio.h"
#include "planner/GeneraMenuProvvisori.h"
#include "planner/SenzaPianificatore.h"
#include "platform/text/Dates.h"

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace {

const QDate kFirstDay(2025, 1, 1);

class AlwaysYes : public Dialoghi
{
public:
    MsgAnswer MsgBox(const QString &, int flags, const QString &) override
    {
        return (flags & 4) != 0 ? MsgAnswer::Si : MsgAnswer::Ok;
    }
    int Msg1(const MsgBoxEx &) override { return 6; }
    QString InputBox(const QString &, const QString &, bool) override { return {}; }
};

class NoProgrammi : public Programmi
{
public:
    void start(ProgramKind, const QString &) override {}
};

// Made once and copied: making the catalogue is no part of what is measured.
QString exampleArchive()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        creaArchivioEsempio(folder.filePath("esempio.db"), kFirstDay);
        return folder.filePath("esempio.db");
    }();
    return path;
}

} // namespace

struct RoadWorld::Private
{
    QTemporaryDir folder;
    AlwaysYes dialoghi;
    NoProgrammi programmi;
    OrologioFermo orologio{QDateTime(kFirstDay, QTime(8, 0))};
    DadoFisso dado;
    SenzaSchermo schermo;
    SenzaSchermate schermate;
    Environment mondo{ProgramFolder(folder.path()), dialoghi, programmi, orologio, dado, schermo};
    ModNetServer modulo{mondo, schermate};
};

RoadWorld::RoadWorld() : m_private(std::make_unique<Private>())
{
    if (!QFile::copy(exampleArchive(), archivePath()))
        throw std::runtime_error("the example archive cannot be copied");
    ModNetServer &state = m_private->modulo;
    state.NomePrimaPersona = "Ondira";
    state.NomeSecondaPersona = "Tesmo";
    state.KcalPrimaPersona = "1100";
    state.KcalSecondaPersona = "1500";
    open();
}

RoadWorld::~RoadWorld() = default;

void RoadWorld::planExpandBalance(int days)
{
    SceltaMenu choice;
    choice.Text1 = TestoData(kFirstDay);
    choice.Text2 = TestoData(kFirstDay.addDays(days - 1));
    choice.Freq.fill("1");
    choice.Check[3] = true;  // fish at lunch, on the first day of each seven
    choice.Check[12] = true; // balance each day
    InsiemiPiatti sets;
    sets.Apri(modulo().dati());
    GeneraMenuProvvisori(modulo(), sets, choice);
    SenzaPianificatore form;
    mnuGenera(modulo(), {choice.Text1, choice.Text2, true}, form);
}

void RoadWorld::open()
{
    modulo().ConnessioneDati = std::make_unique<Connection>();
    if (!modulo().ConnessioneDati->Open(archivePath()))
        throw std::runtime_error("the example archive does not open");
}

void RoadWorld::close()
{
    modulo().RsComune.reset();
    modulo().ConnessioneDati.reset();
}

QString RoadWorld::archivePath() const
{
    return m_private->folder.filePath("famiglia.db");
}

ModNetServer &RoadWorld::modulo()
{
    return m_private->modulo;
}
