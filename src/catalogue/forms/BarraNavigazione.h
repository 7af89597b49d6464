// The look of a navigation bar: its four buttons with their arrows and hints.
#pragma once

class QAbstractButton;

void VestiNavigazione(QAbstractButton *cmdFirst, QAbstractButton *cmdPrevious, QAbstractButton *cmdNext,
                      QAbstractButton *cmdLast);
