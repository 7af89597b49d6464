#include "catalogue/forms/BarraNavigazione.h"

#include "catalogue/forms/Icone.h"

#include <QAbstractButton>

namespace {

void dress(QAbstractButton *button, const QString &arrow, const QString &hint)
{
    button->setIcon(Icone::icona(arrow));
    button->setToolTip(hint);
    button->setAccessibleName(hint);
}

} // namespace

void VestiNavigazione(QAbstractButton *cmdFirst, QAbstractButton *cmdPrevious, QAbstractButton *cmdNext,
                      QAbstractButton *cmdLast)
{
    dress(cmdFirst, "primo", "Va all'inizio del RecordSet");
    dress(cmdPrevious, "precedente", "Va Indietro di un Record");
    dress(cmdNext, "successivo", "Va avanti di un Record");
    dress(cmdLast, "ultimo", "Va all'ultimo record del RecordSet");
}
