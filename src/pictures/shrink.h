// A picture made smaller. Knows no file.
#pragma once

#include "canvas/surface.h"

namespace pixano {

/// The picture within a square of `side` pixels (1 or more): as it is where it fits, else with its
/// longer side exactly `side` and the other one in proportion, 1 at least. Each pixel is, in red,
/// green and blue, the mean of the area that it covers, rounded to the nearest, halves up.
Surface ShrunkWithin(Surface picture, int side);

}  // namespace pixano
