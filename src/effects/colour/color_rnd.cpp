// "Foto Color Rnd": small copies of the picture, each in a shifted colour, strewn over it.
#include "canvas/captures.h"
#include "canvas/rounding.h"
#include "effects/colour/colour.h"
#include "effects/colour/draws.h"

namespace pixano {
namespace {

/// A place along a side, in its first two thirds.
int DrawPlace(Work& w, int side)
{
    return static_cast<int>(Int(side * w.Rnd() / 1.5)) + 1;
}

/// Paints every `s`-th pixel of every `s`-th row, its colour lowered, right of and below (x0, y0).
void PasteCopy(Work& w, int x0, int y0, int s, Colour lowered)
{
    int y = y0;
    for (int j = 0; j <= w.Alt; j += s) {
        ++y;
        int x = x0;
        for (int k = 0; k <= w.Larg; k += s) {
            ++x;
            w.Picture1.PSet(x, y, w.Vettore(k, j) - lowered);
        }
    }
}

}  // namespace

/// "Foto Color Rnd". One copy in about as many rows as `chances` says; none when that is below 2.
void ColorRnd(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    const double chances = 57 - Int(w.Strength() / 200);
    for (int i = 0; i <= w.Alt; ++i) {
        w.Randomize();
        w.Avanzamento(i);
        const double n = Int(chances * w.Rnd()) + 1;
        const int s = DrawBelow(w, 15) + 3;
        if (n != 2) continue;
        const int x0 = DrawPlace(w, w.Larg);
        const int y0 = DrawPlace(w, w.Alt);
        const Colour lowered = DrawBelow(w, 2000000);
        PasteCopy(w, x0, y0, s, lowered);
    }
}

}  // namespace pixano
