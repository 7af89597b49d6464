#include "shell/forms/GestioneRete.h"

#include "core/Helpers.h"
#include "shell/ConfermaDatabase.h"
#include "shell/DatabaseReport.h"
#include "shell/PercorsiSalvati.h"
#include "ui_GestioneRete.h"

#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace {

constexpr int kDataTab = 1;

void wordButtons(QFileDialog &dialog)
{
    dialog.setLabelText(QFileDialog::LookIn, "Cartella:");
    dialog.setLabelText(QFileDialog::FileName, "Nome del file:");
    dialog.setLabelText(QFileDialog::FileType, "Tipo di file:");
    dialog.setLabelText(QFileDialog::Accept, "Apri");
    dialog.setLabelText(QFileDialog::Reject, "Annulla");
}

} // namespace

GestioneRete::GestioneRete(FormHost &host, ModNetServer &modulo)
    : Form("GestioneRete", host), m_ui(std::make_unique<Ui::GestioneRete>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    m_ui->File1->setFiltro("NetServer.mdb");
    m_ui->SSTab1->setCurrentIndex(kDataTab);
    m_ui->Command2->setDefault(true);
    QFont heading = m_ui->Label4->font();
    heading.setWeight(QFont::DemiBold);
    m_ui->Label4->setFont(heading);
    connectHandlers();
}

GestioneRete::~GestioneRete() = default;

void GestioneRete::connectHandlers()
{
    on(m_ui->Drive1, &QComboBox::currentIndexChanged, this, &GestioneRete::Drive1_Change);
    on(m_ui->Drive2, &QComboBox::currentIndexChanged, this, &GestioneRete::Drive2_Change);
    on(m_ui->Dir1, &ElencoCartelle::cartellaCambiata, this, &GestioneRete::Dir1_Change);
    on(m_ui->Dir2, &ElencoCartelle::cartellaCambiata, this, &GestioneRete::Dir2_Change);
    on(m_ui->Percorso1, &QLineEdit::editingFinished, this, &GestioneRete::Percorso1_Return);
    on(m_ui->Percorso2, &QLineEdit::editingFinished, this, &GestioneRete::Percorso2_Return);
    on(m_ui->Command1, &QPushButton::clicked, this, &GestioneRete::Command1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &GestioneRete::Command2_Click);
    on(m_ui->Command3, &QPushButton::clicked, this, &GestioneRete::Command3_Click);
    on(m_ui->Command4, &QPushButton::clicked, this, &GestioneRete::Command2_Click);
}

void GestioneRete::Form_Load()
{
    try {
        RegistraModifica(m_modulo, m_modulo.mondo.folder.path() + "\\" + name() + ".FRM");
    } catch (const Failure &) {
        // A list for the makers of the program: its failure concerns nobody else.
    }
    m_ui->Dir1->setCartella(m_modulo.mondo.folder.path());
    m_ui->Dir2->setCartella(m_modulo.mondo.folder.path());
    Dir1_Change();
    Dir2_Change();
    try {
        posiziona();
    } catch (const Failure &) {
        // Whatever the file says or lacks, the lists stay on the program folder.
    }
    aggiornaReport();
}

void GestioneRete::posiziona()
{
    const PercorsiSalvati saved = LeggiPercorsiSalvati(m_modulo);
    m_ui->Dir1->setCartella(saved.sistema.cartella);
    m_ui->Dir2->setCartella(saved.dati.cartella);
    m_ui->File1->seleziona(saved.sistema.file);
    m_ui->File2->seleziona(saved.dati.file);
}

void GestioneRete::Drive1_Change()
{
    m_ui->Dir1->setCartella(m_ui->Drive1->disco());
}

void GestioneRete::Drive2_Change()
{
    m_ui->Dir2->setCartella(m_ui->Drive2->disco());
}

void GestioneRete::Dir1_Change()
{
    m_ui->Drive1->mostraDiscoDi(m_ui->Dir1->cartella());
    m_ui->Percorso1->setText(QDir::toNativeSeparators(m_ui->Dir1->cartella()));
    m_ui->File1->mostra(m_ui->Dir1->cartella());
}

void GestioneRete::Dir2_Change()
{
    m_ui->Drive2->mostraDiscoDi(m_ui->Dir2->cartella());
    m_ui->Percorso2->setText(QDir::toNativeSeparators(m_ui->Dir2->cartella()));
    m_ui->File2->mostra(m_ui->Dir2->cartella());
}

void GestioneRete::Percorso1_Return()
{
    vaiA(*m_ui->Percorso1, *m_ui->Dir1);
}

void GestioneRete::Percorso2_Return()
{
    vaiA(*m_ui->Percorso2, *m_ui->Dir2);
}

// The box shows the folder again before the message takes the focus from it, which counts as typed once more.
void GestioneRete::vaiA(QLineEdit &percorso, ElencoCartelle &cartelle)
{
    const QString typed = percorso.text();
    cartelle.setCartella(typed);
    percorso.setText(QDir::toNativeSeparators(cartelle.cartella()));
    if (!typed.trimmed().isEmpty() && !QDir(typed).exists())
        m_modulo.mondo.dialoghi.MsgBox("La cartella \"" + typed + "\" non esiste: resta quella di prima.",
                                       MsgFlags::Exclamation, windowTitle());
}

void GestioneRete::Command1_Click()
{
    TerminaProgramma();
}

void GestioneRete::Command2_Click()
{
    const DopoConferma next =
        ConfermaDatabase(m_modulo, QDir::toNativeSeparators(m_ui->Dir2->cartella()), m_ui->File2->fileScelto());
    if (next == DopoConferma::ChiudiDialogo)
        unload();
}

void GestioneRete::Command3_Click()
{
    if (!DaScegliereDatabaseReport(m_modulo))
        return;
    const QString file = scegliFile();
    if (!file.isEmpty())
        RegistraDatabaseReport(m_modulo, file);
    aggiornaReport();
    m_ui->SSTab1->setCurrentIndex(0);
    m_ui->Command2->setFocus();
}

QString GestioneRete::scegliFile()
{
    QFileDialog dialog(this, "Database per le stampe", m_ui->Dir2->cartella(), "Mdb Files (*.Mdb)");
    dialog.setObjectName("CommonDialog1");
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ReadOnly); // to choose is all there is to do
    dialog.setViewMode(QFileDialog::List);
    dialog.setFileMode(QFileDialog::ExistingFile);
    wordButtons(dialog);
    QEventLoop loop;
    connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    dialog.open();
    host().runLoop(loop);
    return dialog.result() == QDialog::Accepted ? QDir::toNativeSeparators(dialog.selectedFiles().value(0)) : QString();
}

void GestioneRete::aggiornaReport()
{
    const QString path = DatabaseReportRegistrato(m_modulo);
    m_ui->PercorsoReport->setText(path.isEmpty() ? QString("Nessun database per le stampe registrato.") : path);
}

void GestioneRete::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}

// Enter in a path goes to that folder, and does not confirm at once.
void GestioneRete::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Also where the message on a folder has just taken the focus for a while.
    const bool inPath = focusWidget() == m_ui->Percorso1 || focusWidget() == m_ui->Percorso2;
    if (isEnter && inPath)
        event->accept();
    else
        Form::keyPressEvent(event);
}

void GestioneRete::Form_DblClick()
{
    SegnalaProblemi(m_modulo, name());
}
