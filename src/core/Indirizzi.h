// Addresses on the net that the program opens or prints, each in this one place.
#pragma once

#include <QString>

// A public page that computes the calories a person needs.
inline const QString kPaginaCalorie = QStringLiteral("https://www.calculator.net/calorie-calculator.html");
