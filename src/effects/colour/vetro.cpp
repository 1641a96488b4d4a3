// "Vetro": the picture as through pressed glass, bright pixels moved down and to the right.
#include "canvas/rounding.h"
#include "effects/colour/colour.h"
#include "effects/colour/read_back.h"

namespace pixano {

/// "Vetro". The way is not rounded; the surface says which pixel is meant.
void Vetro(Work& w)
{
    const double q = (12010 - w.Strength()) * 0.4;
    ReadBack(w, [&canvas = w.Picture1, q](int x, int y, Colour c) {
        const double d = Quotient(c, q) / 1000;
        canvas.PSet(static_cast<float>(x + d), static_cast<float>(y + d), c);
    });
}

}  // namespace pixano
