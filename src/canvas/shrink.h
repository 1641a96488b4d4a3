// A picture made smaller. Knows no file and no window.
#pragma once

#include "canvas/surface.h"

namespace pixano {

/// A part of a picture, in pixels.
struct Part {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// That part of what the picture would be with `width` by `height` pixels (1 or more, no side
/// longer than its own). Each pixel is, in red, green and blue, the mean of the area that it
/// covers, rounded to the nearest, halves up.
Surface ShrunkPart(const Surface& picture, int width, int height, const Part& part);

/// The picture within a square of `side` pixels (1 or more): as it is where it fits, else with its
/// longer side exactly `side` and the other one in proportion, 1 at least; its pixels as those of
/// `ShrunkPart`.
Surface ShrunkWithin(Surface picture, int side);

}  // namespace pixano
