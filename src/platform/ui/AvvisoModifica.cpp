#include "platform/ui/AvvisoModifica.h"

#include "platform/ui/CampoLegato.h"

#include <algorithm>

namespace {

constexpr int kHeight = 3; // pixels

bool isWaiting(const CampoLegato *campo)
{
    const std::shared_ptr<Recordset> &righe = campo->dataSource();
    return campo->isChanged() || (righe && righe->isOpen() && righe->isPending());
}

} // namespace

AvvisoModifica::AvvisoModifica(QWidget *parent) : QFrame(parent)
{
    setFixedHeight(kHeight);
    setStyleSheet("background: palette(highlight);");
    setToolTip("Modifiche non ancora salvate");
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
}

void AvvisoModifica::segui(CampoLegato *campo)
{
    m_campi.push_back(campo);
    connect(campo, &CampoLegato::changed, this, &AvvisoModifica::aggiorna);
}

void AvvisoModifica::segui(Recordset *righe)
{
    connect(righe, &Recordset::moveComplete, this, &AvvisoModifica::aggiorna, Qt::UniqueConnection);
    connect(righe, &Recordset::rowChanged, this, &AvvisoModifica::aggiorna, Qt::UniqueConnection);
    aggiorna();
}

void AvvisoModifica::aggiorna()
{
    setVisible(std::any_of(m_campi.begin(), m_campi.end(), isWaiting));
}
