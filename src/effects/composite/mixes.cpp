// The picture mixed with its mirror image, line by line. The mirror lies one place to the right, or
// lower: kept exactly.
#include "canvas/captures.h"
#include "effects/composite/composite.h"

namespace pixano {

/// "Mix Verticale": odd columns from the picture with left and right exchanged.
void MixVert(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        for (int x = 1; x <= w.Larg; x += 2)
            w.Picture1.PSet(x, y, w.Vettore(w.Larg - x, y));
    }
}

/// "Mix Orizzontale": odd rows from the picture with top and bottom exchanged.
void MixOriz(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        if (y % 2 == 0) continue;
        for (int x = 0; x <= w.Larg; ++x)
            w.Picture1.PSet(x, y, w.Vettore(x, w.Alt - y));
    }
}

/// "Mix Multifoto": both, and where both would paint the rows win.
void MixMultif(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        for (int x = 0; x <= w.Larg; ++x) {
            if (x % 2 != 0) w.Picture1.PSet(x, y, w.Vettore(w.Larg - x, y));
            if (y % 2 != 0) w.Picture1.PSet(x, y, w.Vettore(x, w.Alt - y));
        }
    }
}

}  // namespace pixano
