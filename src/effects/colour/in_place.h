// The pass of the effects that read and repaint the canvas in one go, without a copy of it.
#pragma once

#include "canvas/work.h"

namespace pixano {

/// Shows the progress window, then calls `step(x, y)` for every pixel, row by row from the top and
/// left to right. What a step paints is what later steps read.
template <typename Step>
void InPlace(Work& w, Step step)
{
    w.ShowProgress();
    for (int y = 0; y <= w.Alt - 1; ++y) {
        w.Avanzamento(y);
        // No painted pixel can be this: it is not read anew at every one.
        const int right = w.Larg - 1;
        for (int x = 0; x <= right; ++x)
            step(x, y);
    }
}

}  // namespace pixano
