// The picture upside down, as in a mirror, and both.
#include "canvas/captures.h"
#include "effects/geometry/geometry.h"

namespace pixano {

/// "Capovolgi": the picture turned by half a turn. The columns come out one place to the right, so
/// column 0 is painted with the outside colour and the old column 0 is lost: kept exactly.
void Capov(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = w.Alt; y >= 0; --y) {
        w.Avanzamento(w.Alt - y);
        w.Input(w.Larg + 1, [&canvas = w.Picture1, right = w.Larg, y](int i, Colour c) {
            canvas.PSet(right - i, y - 1, c);
        });
    }
}

/// "Specchio": the picture as in a mirror, left and right exchanged.
void Specchio(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        w.Input(w.Larg + 1, [&canvas = w.Picture1, right = w.Larg, y](int i, Colour c) {
            canvas.PSet(right - i - 1, y, c);
        });
    }
}

/// "Capovolgi a Specchio": top and bottom exchanged.
void CapovSpec(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = w.Alt; y >= 0; --y) {
        w.Avanzamento(w.Alt - y);
        w.Input(w.Larg + 1,
                [&canvas = w.Picture1, y](int x, Colour c) { canvas.PSet(x, y - 1, c); });
    }
}

}  // namespace pixano
