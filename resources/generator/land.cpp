// The scene's land beyond the water: snowy mountains on the right, an island on the left. Knows
// neither sky nor sea.
#include "backdrop.h"
#include "noise.h"

namespace pixano::art {

namespace {

constexpr double Highest = 135;

/// Mountainous ground: fine layers are held back where coarse ones are steep, as if washed out.
double Rugged(double x, double z, int octaves)
{
    double sum = 0;
    double weight = 1;
    double slopeX = 0;
    double slopeZ = 0;
    for (int i = 0; i < octaves; ++i) {
        const Swell swell = NoiseSwell(x, z);
        slopeX += swell.alongX;
        slopeZ += swell.alongY;
        sum += weight * swell.height / (1 + slopeX * slopeX + slopeZ * slopeZ);
        weight /= 2;
        const double turned = 1.6 * x - 1.2 * z;
        z = 1.2 * x + 1.6 * z;
        x = turned;
    }
    return sum;
}

/// 1 in the middle of a mound, 0 from its edge on.
double Mound(double x, double z, double width, double depth)
{
    const double off = (x * x) / (width * width) + (z * z) / (depth * depth);
    return off >= 1 ? 0 : (1 - off) * (1 - off);
}

double LandHeight(double x, double z, int octaves)
{
    const double range = 100 * Mound(x - 175, z - 330, 250, 170);
    const double foothills = 30 * Mound(x - 95, z - 165, 120, 60);
    const double island = 34 * Mound(x + 175, z - 520, 95, 90);
    const double rise = range + foothills + island;
    if (rise <= 0) return -5;
    return rise * (0.25 + 1.35 * Rugged(x * 0.0135 + 7.7, z * 0.0135 + 1.3, octaves)) - 5;
}

Triple Upright(const Triple& place, double distance)
{
    const double reach = 0.0012 * distance;
    const double dx =
        LandHeight(place.x - reach, place.z, 11) - LandHeight(place.x + reach, place.z, 11);
    const double dz =
        LandHeight(place.x, place.z - reach, 11) - LandHeight(place.x, place.z + reach, 11);
    return Unit({dx, 2 * reach, dz});
}

bool InShadow(const Triple& place)
{
    double along = 1.5;
    for (int i = 0; i < 28 && along < 160; ++i) {
        const Triple at = place + LandLight * along;
        const double clearance = at.y - LandHeight(at.x, at.z, 6);
        if (clearance < 0) return true;
        along += std::max(1.5, clearance * 0.7);
    }
    return false;
}

Triple Ground(const Triple& place, const Triple& upright)
{
    const double patches = Clouded(place.x * 0.11, place.z * 0.11, 5);
    const double grain = Clouded(place.x * 0.9, place.y * 1.7 + place.z * 0.6, 4);
    const Triple rock =
        Mix(Triple{0.34, 0.27, 0.26}, Triple{0.62, 0.52, 0.46}, grain) * Mix(0.8, 1.1, patches);
    const Triple wood =
        Mix(Triple{0.07, 0.20, 0.10}, Triple{0.30, 0.44, 0.15}, Step(0.3, 0.75, grain));
    const Triple pasture = Mix(Triple{0.36, 0.47, 0.18}, Triple{0.56, 0.54, 0.26}, patches);
    const double level = place.y + 22 * (patches - 0.5);
    Triple colour = Mix(wood, pasture, Step(0.45, 0.62, patches));
    colour = Mix(colour, rock, std::max(Step(22, 42, level), Step(0.62, 0.42, upright.y)));
    const double snow = Step(46, 60, level) * Step(0.30, 0.52, upright.y + 0.2 * (grain - 0.5));
    colour = Mix(colour, Triple{0.95, 0.96, 1.0}, snow);
    return Mix(Triple{0.80, 0.72, 0.55}, colour, Step(0.3, 1.4, place.y));
}

}  // namespace

double DistanceToLand(const Triple& eye, const Triple& direction, double farthest)
{
    double along = 60;
    double before = along;
    while (along < farthest) {
        const Triple at = eye + direction * along;
        if (at.y > Highest && direction.y >= 0) return 0;
        const double clearance = at.y - LandHeight(at.x, at.z, 9);
        if (clearance < 0.0006 * along) return (along + before) / 2;
        before = along;
        along += std::max(0.15, clearance * 0.32);
    }
    return 0;
}

Triple LandColour(const Triple& place, double distance)
{
    const Triple upright = Upright(place, distance);
    double sun = std::clamp(Dot(upright, LandLight), 0.0, 1.0);
    if (sun > 0 && InShadow(place)) sun *= 0.12;
    const Triple light =
        Triple{0.34, 0.40, 0.54} * (0.55 + 0.45 * upright.y) + Triple{1.25, 1.02, 0.76} * sun;
    const Triple lit = Ground(place, upright) * light;
    const double haze = distance / (distance + 1150);
    const double warm = Step(150, -250, place.x);
    return Mix(lit, Mix(Triple{0.62, 0.74, 0.90}, Triple{0.96, 0.80, 0.66}, warm), haze);
}

}  // namespace pixano::art
