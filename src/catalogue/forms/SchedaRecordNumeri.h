// Numbers that the parts of the record form template share.
#pragma once

#include <array>

// Panels of the nine-panel bar, used on the seven-panel bar too: a panel that is not there is passed over.
namespace Pannelli {
constexpr int Nuovo = 1;
constexpr int Cancella = 5;
inline constexpr std::array Inserimento{6, 8};
inline constexpr std::array Vista{1, 2, 3, 4, 5, 7, 9};
} // namespace Pannelli
