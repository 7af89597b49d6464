// The program's dress: style, palette, fonts and spacing, light or dark as the desktop is.
#pragma once

#include <QColor>

class QApplication;
class QWidget;

namespace Tema {
void apply(QApplication &application);
QColor accent();      // warm orange of the background screen
QColor firstPerson(); // discreet colours of the two persons, for captions
QColor secondPerson();
void colourCaption(QWidget *caption, const QColor &colour); // on the ground of a window as on a card
QColor meal(const QString &meal); // faint row colour of a meal kind of the daily sheet; invalid where there is none
} // namespace Tema
