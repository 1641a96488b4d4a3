// The pass of the effects that repaint the canvas from the pixel working file, in its own order.
#pragma once

#include "canvas/captures.h"
#include "canvas/work.h"

namespace pixano {

/// Captures the picture, shows the progress window, then calls `step(x, y, c)` for every captured
/// value c, the column `Larg` and the row `Alt` outside the picture included.
template <typename Step>
void ReadBack(Work& w, Step step)
{
    Cattura(w);
    w.ShowProgress();
    for (int y = 0; y <= w.Alt; ++y) {
        w.Avanzamento(y);
        w.Input(w.Larg + 1, [step, y](int x, Colour c) { step(x, y, c); });
    }
}

}  // namespace pixano
