// "Forbici": rows squeezed more and more towards the bottom, each drawn at its mirror place too.
#include "canvas/captures.h"
#include "canvas/rounding.h"
#include "effects/colour/colour.h"

namespace pixano {
namespace {

/// How much further than the row above each row steps through its source.
double Stretch(Work& w)
{
    double p = w.Strength();
    if (p < 200) p += 200;
    return (51 - Int(p / 200)) * w.Rnd() / 200;
}

/// Paints the source row `y` in steps of `step`, in place and mirrored, up to the right edge.
void CutRow(Work& w, int y, double step)
{
    double source = 0;
    for (int x = 0; x <= w.Larg; ++x) {
        source += step;
        if (source > w.Larg) return;
        const Colour v = w.Vettore(CLng(source), y);
        w.Picture1.PSet(x, y, v);
        w.Picture1.PSet(x, w.Alt - y, v);
    }
}

}  // namespace

/// "Forbici". Steps and places are added up, not multiplied: kept exactly.
void Forbici(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    const double g = Stretch(w);
    double step = 0;
    for (int y = 0; y <= w.Alt; ++y) {
        w.Randomize();
        w.Avanzamento(y);
        // Two draws that nothing is made of; whoever draws next depends on them.
        w.Rnd();
        w.Rnd();
        step += g;
        CutRow(w, y, step);
    }
}

}  // namespace pixano
