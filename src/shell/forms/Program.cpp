#include "shell/forms/Program.h"

#include "catalogue/forms/CreaGruppo.h"
#include "catalogue/forms/FrmCategorie.h"
#include "catalogue/forms/FrmMenu.h"
#include "catalogue/forms/InserimentoKCal.h"
#include "catalogue/forms/MyBrowse.h"
#include "catalogue/forms/PiattiKCAL.h"
#include "catalogue/forms/Sostituti.h"
#include "core/ErrorLog.h"
#include "core/Vocabulary.h"
#include "planner/forms/GeneraMenu.h"
#include "planner/forms/Preferiti.h"
#include "platform/ui/DialoghiQt.h"
#include "platform/ui/Disegno.h"
#include "platform/ui/FormHost.h"
#include "platform/ui/FormRegistry.h"
#include "sheet/forms/FrmCibra.h"
#include "shell/forms/GestioneRete.h"
#include "shell/forms/Menu.h"
#include "shell/forms/Messaggi.h"
#include "shell/forms/SchermateDelProgramma.h"
#include "shell/forms/Sfondo.h"
#include "shell/Main.h"

#include <QApplication>
#include <QIcon>

// The drawings are part of a static library, which nobody initialises by itself. Outside any namespace, as Qt asks.
static void initResources()
{
    Q_INIT_RESOURCE(shell);
}

struct Program::Private
{
    Private(const ProgramFolder &folder, Programmi &programmi, Orologio &orologio, Dado &dado, Schermo &schermo)
        : dialoghi(host, Program::name()), mondo{folder, dialoghi, programmi, orologio, dado, schermo},
          schermate(registry), modulo(mondo, schermate)
    {
    }

    void setFactories();
    void report(const Failure &failure);

    FormHost host;
    FormRegistry registry;
    DialoghiQt dialoghi;
    Environment mondo;
    SchermateDelProgramma schermate;
    ModNetServer modulo;
    bool ended = false;
};

void Program::Private::setFactories()
{
    registry.setFactory<Messaggi>([this] { return std::make_unique<Messaggi>(host, modulo); });
    registry.setFactory<Sfondo>([this] { return std::make_unique<Sfondo>(host, modulo); });
    registry.setFactory<GestioneRete>([this] { return std::make_unique<GestioneRete>(host, modulo); });
    registry.setFactory<Menu>([this] { return std::make_unique<Menu>(host, registry, modulo); });
    registry.setFactory<CreaGruppo>([this] { return std::make_unique<CreaGruppo>(host, modulo); });
    registry.setFactory<FrmMenu>([this] { return std::make_unique<FrmMenu>(host, registry, modulo); });
    registry.setFactory<InserimentoKCal>([this] { return std::make_unique<InserimentoKCal>(host, modulo); });
    registry.setFactory<MyBrowse>([this] { return std::make_unique<MyBrowse>(host, modulo); });
    registry.setFactory<PiattiKCAL>([this] { return std::make_unique<PiattiKCAL>(host, modulo); });
    registry.setFactory<Sostituti>([this] { return std::make_unique<Sostituti>(host, modulo); });
    registry.setFactory<GeneraMenu>([this] { return std::make_unique<GeneraMenu>(host, registry, modulo); });
    registry.setFactory<Preferiti>([this] { return std::make_unique<Preferiti>(host, modulo); });
    registry.setFactory<FrmCategorie>([this] { return std::make_unique<FrmCategorie>(host, modulo); });
    registry.setFactory<FrmCibra>([this] { return std::make_unique<FrmCibra>(host, registry, modulo); });
}

void Program::Private::report(const Failure &failure)
{
    ScriviLogErrore(modulo, "Errore non gestito ", failure);
    dialoghi.MsgBox(failure.words(), MsgFlags::Critical, Program::name());
}

QString Program::name()
{
    return kNomeProgramma;
}

Program::Program(const ProgramFolder &folder, Programmi &programmi, Orologio &orologio, Dado &dado, Schermo &schermo)
    : m_private(std::make_unique<Private>(folder, programmi, orologio, dado, schermo))
{
    // Between two modal windows none is open: that is no end of the program.
    QApplication::setQuitOnLastWindowClosed(false);
    initResources();
    QApplication::setWindowIcon(Disegno::icon(":/shell/cibra.svg"));
    m_private->host.report = [this](const Failure &failure) { m_private->report(failure); };
    m_private->setFactories();
}

Program::~Program()
{
    m_private->registry.dropAll();
}

void Program::run()
{
    try {
        Main(m_private->modulo, m_private->schermate);
    } catch (const ProgramEnd &) {
        // The usual end: "Uscita ", Esc, the main window closed, or a start given up.
    }
    m_private->ended = true;
    m_private->registry.dropAll();
}

bool Program::ended() const
{
    return m_private->ended;
}

void Program::end()
{
    m_private->host.end();
}
