// The picture turned by a quarter, squeezed into the canvas that it has.
#include "canvas/captures.h"
#include "canvas/rounding.h"
#include "effects/geometry/geometry.h"

namespace pixano {

/// "Rotazione -90°": a quarter turn to the left. The ratios are added up, not multiplied, and row 0
/// and column 0 stay in the background colour: kept exactly.
void RotazMeno(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    const double rx = Quotient(w.Larg, w.Alt);
    const double ry = Quotient(w.Alt, w.Larg);
    w.Picture1.Cls();
    double a = -1;
    for (int i = w.Alt; i >= 1; --i) {
        w.Avanzamento(w.Alt - i);
        a += rx;
        const auto column = w.Vettore.Column(CLng(a));
        double b = 0;
        for (int j = 1; j <= w.Larg; ++j) {
            b += ry;
            w.Picture1.PSet(j, i, column(CLng(b)));
        }
    }
}

/// "Rotazione +90°": a quarter turn to the right; column 0 stays in the background colour.
void RotazPiu(Work& w)
{
    CattuVett(w);
    w.ShowProgress();
    const double rx = Quotient(w.Larg, w.Alt);
    const double ry = Quotient(w.Alt, w.Larg);
    w.Picture1.Cls();
    double a = 0;
    for (int i = 0; i <= w.Alt; ++i) {
        w.Avanzamento(i);
        a += rx;
        const auto column = w.Vettore.Column(CLng(a));
        double b = -1;
        for (int j = w.Larg; j >= 1; --j) {
            b += ry;
            w.Picture1.PSet(j, i, column(CLng(b)));
        }
    }
}

}  // namespace pixano
