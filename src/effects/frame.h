// The part of every effect's frame that concerns pixels. Knows neither history nor windows.
#pragma once

#include "effects/effect.h"

#include <functional>

namespace pixano {

/// Puts the picture on the canvas: `Larg` and `Alt` become its size.
void PutOnCanvas(Work& w, Surface picture);

/// What whoever runs an effect does besides.
struct AroundLoops {
    std::function<void()> before = [] {};
    std::function<void()> after = [] {};
};

/// Runs the effect on the canvas: chooses its strength, reseeds the random numbers where its row
/// says so, runs its loops and deletes the pixel working file if they made one. Throws Fault; a
/// file that the loops made is then left as it is.
void RunOnCanvas(Work& w, const Effect& effect, const AroundLoops& around = {});

}  // namespace pixano
