// What lies behind the meadow: sky, mountains and sea, seen by following rays from the eye. Knows
// nothing that is painted by hand.
#pragma once

#include "light.h"

#include <QImage>

namespace pixano::art {

/// Where the sun stands, and whence the land is lit: more from the side, as a photographer likes
/// it.
inline const Triple TowardsSun = Unit({-0.44, 0.235, 1});
inline const Triple LandLight = Unit({-0.72, 0.50, -0.30});

Triple SkyColour(const Triple& direction);

/// How far along the ray the land is met; 0 for not at all.
double DistanceToLand(const Triple& eye, const Triple& direction, double farthest);
Triple LandColour(const Triple& place, double distance);

/// The sea, height 0, at `place`.
Triple SeaColour(const Triple& place, const Triple& direction, double distance);

/// The whole view, 1280 x 960; nothing is looked for below row `lastRow`.
QImage Backdrop(int lastRow);

}  // namespace pixano::art
