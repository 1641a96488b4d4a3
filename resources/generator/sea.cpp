// The scene's sea: ripples that mirror the sky and the land and glitter below the sun.
#include "backdrop.h"
#include "noise.h"

namespace pixano::art {

namespace {

/// The water's surface at a place; farther ripples melt into one another.
Triple Rippled(const Triple& place, double distance)
{
    double slopeX = 0;
    double slopeZ = 0;
    double scale = 0.16;
    double weight = 0.075;
    for (int i = 0; i < 5; ++i) {
        const Swell swell =
            NoiseSwell(place.x * scale * 0.55 + 11.0 * i, place.z * scale + 7.0 * i);
        const double seen = weight / (1 + distance * scale * 0.012);
        slopeX += seen * swell.alongX * 0.55;
        slopeZ += seen * swell.alongY;
        scale *= 1.9;
        weight *= 0.72;
    }
    return Unit({-slopeX, 1, -slopeZ});
}

Triple Mirrored(const Triple& place, Triple direction)
{
    direction.y = std::max(direction.y, 0.012);
    direction = Unit(direction);
    const double distance = DistanceToLand(place, direction, 700);
    if (distance > 0) return LandColour(place + direction * distance, distance + 120);
    Triple sky = SkyColour(direction);
    const double away = 1 - Dot(direction, TowardsSun);
    return sky + Triple{1, 0.80, 0.48} * (0.9 / (1 + away * away * 1100));
}

}  // namespace

Triple SeaColour(const Triple& place, const Triple& direction, double distance)
{
    const Triple upright = Rippled(place, distance);
    const double facing = std::clamp(-Dot(direction, upright), 0.0, 1.0);
    const double grazing = (1 - facing) * (1 - facing);
    const double share = 0.04 + 0.90 * grazing * grazing * (1 - facing);
    const Triple seen = Mirrored(place, direction + upright * (2 * facing));
    const double near = Step(170, 30, distance);
    const Triple depth = Mix(Triple{0.03, 0.23, 0.40}, Triple{0.04, 0.44, 0.50}, near) *
                         (0.85 + 0.5 * Clouded(place.x * 0.05, place.z * 0.11, 3));
    return Mix(depth, seen, share);
}

}  // namespace pixano::art
