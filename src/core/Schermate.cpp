#include "core/Schermate.h"

namespace {

constexpr double kGrowth = 350; // twips
constexpr double kStart = 200;  // twips

} // namespace

void AvanzaBarra(BarraDelPianificatore &bar)
{
    const double width = bar.larghezzaLabel5();
    bar.setLarghezzaLabel5(width < bar.larghezzaPicture1() ? width + kGrowth : kStart);
}
