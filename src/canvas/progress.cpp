#include "canvas/progress.h"

#include "canvas/fault.h"
#include "canvas/rounding.h"

#include <algorithm>

namespace pixano {

void Progress::Avanzamento(double n, int alt)
{
    constexpr double BarMaximum = 400;
    valBarra_ = static_cast<int>(std::min(Int(Quotient(n * BarMaximum, alt)), BarMaximum));
}

void ShownProgress::Avanzamento(double n, int alt)
{
    constexpr float BarPerPercent = 4;
    Progress::Avanzamento(n, alt);
    window_.SetBar(static_cast<float>(ValBarra()));
    percento_ = static_cast<int>(Int(window_.Bar() / BarPerPercent));
    if (!titoloPreso_) {
        titoloBase_ = window_.Caption();
        titoloPreso_ = true;
    }
    window_.SetCaption(titoloBase_ + "  (" + std::to_string(percento_) + "%)");
}

}  // namespace pixano
