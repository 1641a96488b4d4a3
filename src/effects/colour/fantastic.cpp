// "Fantastic 1" and "Fantastic 2": the picture recoloured where its colour changes along the rows.
#include "effects/colour/colour.h"
#include "effects/colour/in_place.h"

#include <cstdlib>

namespace pixano {
namespace {

/// The pixel before a row's first one is the last one of the row above; before the very first one
/// stands black.
void RecolourChanges(Work& w, Colour from)
{
    Colour previous = 0;
    InPlace(w, [&canvas = w.Picture1, &previous, from](int x, int y) {
        const Colour c = canvas.Point(x, y);
        if (c != previous) canvas.PSet(x, y, std::abs(from - c));
        previous = c;
    });
}

}  // namespace

/// "Fantastic 1".
void FantUno(Work& w)
{
    RecolourChanges(w, 30000);
}

/// "Fantastic 2".
void FantDue(Work& w)
{
    RecolourChanges(w, 20000);
}

}  // namespace pixano
