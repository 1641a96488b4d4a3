// "Distorsione 1" scatters pixels down and to the right, "Distorsione 2" shakes tiles.
#include "effects/colour/colour.h"
#include "effects/colour/draws.h"

#include <algorithm>

namespace pixano {

/// "Distorsione 1". Every pixel lands 1 to 5 rows further down, where the pass finds it again and
/// moves it on: kept exactly. The margin of 6 keeps all of them inside.
void DisUno(Work& w)
{
    w.ShowProgress();
    for (int y = 0; y <= w.Alt - 6; ++y) {
        w.Avanzamento(y);
        for (int x = 0; x <= w.Larg - 6; ++x) {
            const Colour c = w.Picture1.Point(x, y);
            const int dx = DrawBelow(w, 5) + 1;
            const int dy = DrawBelow(w, 5) + 1;
            w.Picture1.PSet(x + dx, y + dy, c);
        }
    }
}

/// "Distorsione 2". Its copy leaves out the column `Larg` and the row `Alt`, which the tiles at the
/// edge read all the same: they find what an earlier effect left there.
void DisDue(Work& w)
{
    for (int y = 0; y <= w.Alt - 1; ++y)
        for (int x = 0; x <= w.Larg - 1; ++x)
            w.Vettore(x, y) = w.Picture1.Point(x, y);
    const int s = DrawBelow(w, 38) + 2;
    w.ShowProgress();
    const double lastY = (w.Alt - 1) - s / 2.0;
    const double lastX = (w.Larg - 1) - s / 2.0;
    for (int y = 0; y <= lastY; y += s) {
        w.Avanzamento(y);
        for (int x = 0; x <= lastX; x += s)
            sposta(w, x, y, s);
    }
}

void sposta(Work& w, int X, int Y, int S)
{
    w.Randomize();
    const int dx = DrawBelow(w, 20) - 10;
    const int dy = DrawBelow(w, 20) - 10;
    const int right = std::min<int>(X + S, w.Larg);
    const int bottom = std::min<int>(Y + S, w.Alt);
    // Column by column: pixels beyond an edge pile up on it, and the last one painted stays.
    for (int i = X; i <= right; ++i) {
        const int u = std::clamp(i + dx, 0, w.Larg - 1);
        for (int j = Y; j <= bottom; ++j)
            w.Picture1.PSet(u, std::clamp(j + dy, 0, w.Alt - 1), w.Vettore(i, j));
    }
}

}  // namespace pixano
