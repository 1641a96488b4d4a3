// "Negativo Artistico" and "Colorazione": every colour turned over or lowered by the strength.
#include "canvas/rounding.h"
#include "effects/colour/colour.h"
#include "effects/colour/read_back.h"

namespace pixano {

/// "Negativo Artistico". White is 22785 short of the number that colours are taken from, so that
/// the negative of dark colours runs over the top and starts again at black: kept exactly.
void Negativo(Work& w)
{
    const double from = 16800000 + 20 * w.Strength();
    ReadBack(w, [&canvas = w.Picture1, from](int x, int y, Colour c) {
        canvas.PSet(x, y, CLng(from - c));
    });
}

/// "Colorazione".
void Colorazione(Work& w)
{
    const double lowered = 1000 * w.Strength();
    ReadBack(w, [&canvas = w.Picture1, lowered](int x, int y, Colour c) {
        canvas.PSet(x, y, CLng(c - lowered));
    });
}

}  // namespace pixano
