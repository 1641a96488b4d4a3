// One half of the picture kept, the other replaced by its mirror image, in place. The bounds differ
// from one effect to the next; the differences are part of the result.
#include "canvas/rounding.h"
#include "effects/geometry/geometry.h"

namespace pixano {
namespace {

void Copy(Surface& picture, int fromX, int fromY, int toX, int toY)
{
    picture.PSet(toX, toY, picture.Point(fromX, fromY));
}

}  // namespace

/// "Rifl. Vert. Sinistro": the left half mirrored onto the right one. Of an odd number of rows the
/// last one is left alone: kept exactly.
void Sinvert(Work& w)
{
    const double H = w.Alt / 2.0;
    const double W = w.Larg / 2.0;
    const int h = w.Alt / 2;
    w.ShowProgress();
    for (int y = 0; y <= H - 1; ++y) {
        w.Avanzamento(2 * y);
        for (int x = 0; x <= W - 1; ++x) {
            const Colour c1 = w.Picture1.Point(x, y);
            const Colour c2 = w.Picture1.Point(x, y + h);
            w.Picture1.PSet(w.Larg - 1 - x, y, c1);
            w.Picture1.PSet(w.Larg - 1 - x, y + h, c2);
        }
    }
}

/// "Rifl. Vert. Destro": the right half mirrored onto the left one.
void Desvert(Work& w)
{
    const double H = w.Alt / 2.0;
    const int h = w.Alt / 2;
    w.ShowProgress();
    for (int y = 0; y <= H; ++y) {
        w.Avanzamento(2 * y);
        for (int x = w.Larg / 2; x <= w.Larg - 1; ++x) {
            Copy(w.Picture1, x, y, w.Larg - 1 - x, y);
            Copy(w.Picture1, x, y + h, w.Larg - 1 - x, y + h);
        }
    }
}

/// "Rifl.o Oriz. Superiore": the top half mirrored onto the bottom one, one row too low, so that
/// the mirror image of row 0 is lost: kept exactly.
void Super(Work& w)
{
    const int half = w.Larg / 2;
    w.ShowProgress();
    for (int y = 0; y <= w.Alt / 2; ++y) {
        w.Avanzamento(2 * y);
        for (int x = 0; x <= half; ++x) {
            Copy(w.Picture1, x, y, x, w.Alt - y);
            Copy(w.Picture1, x + half, y, x + half, w.Alt - y);
        }
    }
}

/// "Rifl. Oriz. Inferiore": the bottom half mirrored onto the top one.
void Infer(Work& w)
{
    const int half = w.Larg / 2;
    const double band = Int(w.Larg / 1.6);  // wider than half, so the middle is copied twice: kept
    w.ShowProgress();
    for (int y = w.Alt / 2; y <= w.Alt; ++y) {
        w.Avanzamento(2 * y - w.Alt + 1);
        for (int x = 0; x <= band; ++x) {
            Copy(w.Picture1, x, y, x, w.Alt - 1 - y);
            Copy(w.Picture1, x + half, y, x + half, w.Alt - 1 - y);
        }
    }
}

}  // namespace pixano
