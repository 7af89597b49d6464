// The lists of a new dish, as both of its windows have them: kind, category, and the dishes that it can be linked to.
#pragma once

#include "platform/store/Connection.h"

class DataCombo;
class QComboBox;

// Gives the two lists their items; their texts are empty.
void RiempiClassi(QComboBox &ComboTipo, QComboBox &ComboCategoria);
// Rebuild the list of dishes, whose text becomes the first of them; without any the text stays. The first does nothing
// while no kind is chosen.
void ElencaPerTipo(const QComboBox &ComboTipo, const QComboBox &ComboCategoria, DataCombo &DataCombo2,
                   Connection &dati);
void ElencaPerCategoria(const QComboBox &ComboTipo, const QComboBox &ComboCategoria, DataCombo &DataCombo2,
                        Connection &dati);
