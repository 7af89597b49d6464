#include "catalogue/forms/FrmCategorie.h"

#include "catalogue/DuplicaRecord.h"
#include "catalogue/forms/BarraNavigazione.h"
#include "catalogue/forms/Icone.h"
#include "core/Vocabulary.h"
#include "ui_FrmCategorie.h"

FrmCategorie::FrmCategorie(FormHost &host, ModNetServer &modulo)
    : SchedaRecord("FrmCategorie", host, modulo), m_ui(std::make_unique<Ui::FrmCategorie>())
{
    m_ui->setupUi(this);
    prepara({{"F5 New", "Aggiunge un Nuovo Record "},
             {"F4 Ricerca", "Ricerca"},
             {"F7 Ric.Successiva", "Ricerca Successiva"},
             {"F3 Cancella", "Cancella il Record corrente"},
             {"F10 Annulla", "Annulla le modifiche"},
             {"Griglia", "Esce dalla procedura"},
             {"F12 Salva", "Salva le modifiche apportate"}});
    mnuAbilita(); // the bar's look while a record is viewed
    setWindowIcon(Icone::icona("alimento"));
    m_ui->LogoEmail->setIcon(Icone::icona("email"));
    m_ui->ImgMarvo->setIcon(Icone::icona("note"));
    VestiNavigazione(m_ui->cmdFirst, m_ui->cmdPrevious, m_ui->cmdNext, m_ui->cmdLast);
    m_gruppo = new ComboLegato(m_ui->DataCombo1, "TIPO", "categorie", "ID");
    aggiungiCampo(m_gruppo);
    on(m_gruppo, &CampoLegato::left, this, &FrmCategorie::DataCombo1_LostFocus);
    on(m_ui->mnuDuplica, &QAction::triggered, this, &FrmCategorie::mnuDuplica_Click);
    on(m_ui->MnuEmail, &QAction::triggered, this, &FrmCategorie::MnuEmail_Click);
    on(m_ui->LogoEmail, &QToolButton::clicked, this, &FrmCategorie::MnuEmail_Click);
}

FrmCategorie::~FrmCategorie() = default;

void FrmCategorie::legaCombo()
{
    auto groups = std::make_shared<Recordset>();
    groups->Open("Select * from CategorieMaster", modulo().dati(), Recordset::Access::ReadOnly);
    m_gruppo->setRowSource(groups);
    m_gruppo->setDataSource(RsScheda);
}

void FrmCategorie::DataCombo1_LostFocus()
{
    lasciato("DataCombo1_LostFocus ", *m_gruppo, [this] { m_gruppo->write(); });
}

// Stored at once: the state stays that of viewing.
void FrmCategorie::mnuDuplica_Click()
{
    comandoRecord("mnuDuplica_Click ", [this] {
        scriviCampi();
        DuplicaRecord(modulo(), *RsScheda, tabella());
        scriviPosizioneSalvata();
    });
}

void FrmCategorie::MnuEmail_Click()
{
    comando("MnuEmail_Click ", [this] {
        modulo().mondo.programmi.start(ProgramKind::Mail, "mailto:" + kIndirizzoAutore + "?Subject=Progetto " +
                                                              kNomeProgramma + " - Procedura " + windowTitle());
    });
}
