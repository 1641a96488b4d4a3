// The picture mixed with its mirror image, line by line. The mirror lies one place to the right, or
// lower: kept exactly.
#include "canvas/captures.h"
#include "effects/composite/composite.h"

namespace pixano {
namespace {

/// The odd columns of row `y` from the picture with left and right exchanged.
void MixColumns(Work& w, int y)
{
    const auto cells = w.Vettore.Row(y);
    for (int x = 1; x <= w.Larg; x += 2)
        w.Picture1.PSet(x, y, cells(w.Larg - x));
}

/// Row `y`, if it is an odd one, from the picture with top and bottom exchanged.
void MixRow(Work& w, int y)
{
    if (y % 2 == 0) return;
    w.Picture1.PaintRow(y, w.Vettore.Row(w.Alt - y, w.Larg + 1));
}

}  // namespace

/// "Mix Verticale": the columns mixed.
void MixVert(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        MixColumns(w, y);
    }
}

/// "Mix Orizzontale": the rows mixed.
void MixOriz(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        MixRow(w, y);
    }
}

/// "Mix Multifoto": both, and where both would paint the rows win.
void MixMultif(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        MixColumns(w, y);
        MixRow(w, y);
    }
}

}  // namespace pixano
