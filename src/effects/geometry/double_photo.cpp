// The picture at half its width or height, drawn twice: as it is and mirrored.
#include "effects/geometry/even_sides.h"
#include "effects/geometry/geometry.h"

namespace pixano {

/// "Doppia Foto Verticale": the left copy as it is, the right one mirrored. Both lie one column off
/// their places and meet in three columns: kept exactly.
void Vertdop(Work& w)
{
    MakeSidesEven(w);
    w.ElabSer.OpenForOutput();
    for (int y = 1; y <= w.Alt; ++y)
        for (int x = 1; x <= w.Larg; x += 2)
            w.ElabSer.Write(w.Picture1.Point(x, y));
    w.ElabSer.Close();
    w.ShowProgress();
    for (int y = 1; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        for (int x = 1; x <= w.Larg / 2; ++x) {
            const Colour c = w.Input();
            w.Picture1.PSet(x + 1, y, c);
            w.Picture1.PSet(w.Larg - x - 1, y, c);
        }
    }
}

/// "Doppia Foto Orizzontale": the upper copy as it is, one row too low, the lower one mirrored;
/// they meet in two rows: kept exactly.
void Orizdop(Work& w)
{
    MakeSidesEven(w);
    w.ElabSer.OpenForOutput();
    for (int y = 1; y <= w.Alt; y += 2)
        for (int x = 1; x <= w.Larg; ++x)
            w.ElabSer.Write(w.Picture1.Point(x, y));
    w.ElabSer.Close();
    w.ShowProgress();
    for (int y = 1; y <= w.Alt / 2; ++y) {
        w.Avanzamento(2 * y);
        for (int x = 1; x <= w.Larg; ++x) {
            const Colour c = w.Input();
            w.Picture1.PSet(x, y + 1, c);
            w.Picture1.PSet(x, w.Alt - y, c);
        }
    }
}

}  // namespace pixano
