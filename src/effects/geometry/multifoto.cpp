// The picture at half its sides, once in each quarter of the canvas.
#include "canvas/captures.h"
#include "effects/geometry/even_sides.h"
#include "effects/geometry/geometry.h"

namespace pixano {

/// "Multifoto": upper left as it is, upper right mirrored, lower left upside down, lower right
/// both. Row 0 and column 0 keep their colours: kept exactly.
void Multifoto(Work& w)
{
    MakeSidesEven(w);
    CatturaMez(w);
    w.ShowProgress();
    for (int y = 1; y <= w.Alt / 2; ++y) {
        w.Avanzamento(2 * y);
        for (int x = 1; x <= w.Larg / 2; ++x) {
            const Colour c = w.Input();
            w.Picture1.PSet(x, y, c);
            w.Picture1.PSet(w.Larg - x, y, c);
            w.Picture1.PSet(x, w.Alt - y, c);
            w.Picture1.PSet(w.Larg - x, w.Alt - y, c);
        }
    }
}

}  // namespace pixano
