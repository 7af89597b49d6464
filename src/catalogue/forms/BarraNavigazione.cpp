#include "catalogue/forms/BarraNavigazione.h"

#include <QAbstractButton>
#include <QStyle>

namespace {

void dress(QAbstractButton *button, QStyle::StandardPixmap arrow, const QString &hint)
{
    button->setIcon(button->style()->standardIcon(arrow));
    button->setToolTip(hint);
    button->setAccessibleName(hint);
}

} // namespace

void VestiNavigazione(QAbstractButton *cmdFirst, QAbstractButton *cmdPrevious, QAbstractButton *cmdNext,
                      QAbstractButton *cmdLast)
{
    dress(cmdFirst, QStyle::SP_MediaSkipBackward, "Va all'inizio del RecordSet");
    dress(cmdPrevious, QStyle::SP_MediaSeekBackward, "Va Indietro di un Record");
    dress(cmdNext, QStyle::SP_MediaSeekForward, "Va avanti di un Record");
    dress(cmdLast, QStyle::SP_MediaSkipForward, "Va all'ultimo record del RecordSet");
}
