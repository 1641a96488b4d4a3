// "Empireo 1": the difference to the picture turned by half a turn, where it is not too large.
// "Empireo 2": the packed value slightly scaled, which hardly changes blue and stirs up the rest.
#include "canvas/rounding.h"
#include "effects/colour/colour.h"
#include "effects/colour/in_place.h"

#include <cstdlib>

namespace pixano {

/// "Empireo 1". The lower half is computed against an upper half that is already replaced.
void EmpUno(Work& w)
{
    constexpr Colour Limit = 10200000;
    const int right = w.Larg - 1;
    const int bottom = w.Alt - 1;
    InPlace(w, [&canvas = w.Picture1, right, bottom](int x, int y) {
        const Colour a = canvas.Point(right - x, bottom - y);
        const Colour b = canvas.Point(x, y);
        const Colour d = std::abs(b - a);
        canvas.PSet(x, y, d > Limit ? b : d);
    });
}

/// "Empireo 2".
void EmpDue(Work& w)
{
    constexpr double Divisor = 1.002;
    InPlace(w, [&canvas = w.Picture1](int x, int y) {
        canvas.PSet(x, y, CLng(canvas.Point(x, y) / Divisor));
    });
}

}  // namespace pixano
