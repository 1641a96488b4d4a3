// Small copies of the picture scattered over it.
#include "canvas/rounding.h"
#include "effects/composite/composite.h"

#include <algorithm>

namespace pixano {
namespace {

struct Miniature {
    int width = 0;
    int height = 0;
};

/// Samples every `passoX`th pixel of every `passoY`th row into the first cells of `Vettore`.
Miniature Sample(Work& w, int passoX, int passoY)
{
    Miniature mini;
    for (int y = 0; y <= w.Alt - 2; y += passoY) {
        w.Avanzamento(y);
        mini.width = 0;
        for (int x = 0; x <= w.Larg - 2; x += passoX)
            w.Vettore(mini.width++, mini.height) = w.Picture1.Point(x, y);
        ++mini.height;
    }
    return mini;
}

/// Pastes the miniature at (x0, y0), cut at the picture's right and bottom edge. One column and one
/// row more than were sampled are painted, from cells that something else left: kept exactly.
void Paste(Work& w, const Miniature& mini, int x0, int y0)
{
    const int right = std::min(x0 + mini.width, w.Larg - 1);
    const int bottom = std::min(y0 + mini.height, w.Alt - 1);
    for (int y = y0; y <= bottom; ++y)
        for (int x = x0; x <= right; ++x)
            w.Picture1.PSet(x, y, w.Vettore(x - x0, y - y0));
}

}  // namespace

/// "Mini Foto Rnd": 19 to 49 copies of a miniature at random places, each over the ones before. The
/// miniature is complete before the first copy is painted.
void MiniRnd(Work& w)
{
    w.Randomize();
    w.ShowProgress();
    const int passoX = CLng(Int(w.Rnd() * 4)) + 2;
    const int passoY = CLng(Int(w.Rnd() * 4)) + 2;
    const Miniature mini = Sample(w, passoX, passoY);
    const int copie = CLng(Int(w.Rnd() * 25)) + 15 + passoX + passoY;
    for (int k = 1; k <= copie; ++k) {
        const int x0 = CLng(Int(w.Rnd() * w.Larg + 40)) - 40;
        const int y0 = CLng(Int(w.Rnd() * w.Alt + 40)) - 40;
        Paste(w, mini, x0, y0);
    }
}

}  // namespace pixano
