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
        for (int x = w.Larg; x >= 0; --x)
            w.Picture1.PSet(x, y - 1, w.Input());
    }
}

/// "Specchio": the picture as in a mirror, left and right exchanged.
void Specchio(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        for (int x = w.Larg; x >= 0; --x)
            w.Picture1.PSet(x - 1, y, w.Input());
    }
}

/// "Capovolgi a Specchio": top and bottom exchanged.
void CapovSpec(Work& w)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = w.Alt; y >= 0; --y) {
        w.Avanzamento(w.Alt - y);
        for (int x = 0; x <= w.Larg; ++x)
            w.Picture1.PSet(x, y - 1, w.Input());
    }
}

}  // namespace pixano
