// Irregularity that is the same at every run: smooth noise over the plane and a row of dice throws.
#include "noise.h"

#include <cmath>

namespace pixano::art {

namespace {

std::uint64_t Scrambled(std::uint64_t n)
{
    n = (n ^ (n >> 30)) * 0xBF58476D1CE4E5B9u;
    n = (n ^ (n >> 27)) * 0x94D049BB133111EBu;
    return n ^ (n >> 31);
}

double Share(std::uint64_t n)
{
    return static_cast<double>(n >> 11) / 9007199254740992.0;
}

double AtCorner(double x, double y)
{
    // Unsigned numbers may wrap around.
    const auto column = static_cast<std::uint64_t>(static_cast<std::int64_t>(x));
    const auto row = static_cast<std::uint64_t>(static_cast<std::int64_t>(y));
    return Share(Scrambled(column * 0x1F123BB5u + row * 0x5851F42D4C95u + 0x9E3779B97F4A7C15u));
}

}  // namespace

Swell NoiseSwell(double x, double y)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const double u = x - left;
    const double v = y - top;
    const double su = u * u * u * (u * (u * 6 - 15) + 10);
    const double sv = v * v * v * (v * (v * 6 - 15) + 10);
    const double a = AtCorner(left, top);
    const double b = AtCorner(left + 1, top) - a;
    const double c = AtCorner(left, top + 1) - a;
    const double d = AtCorner(left + 1, top + 1) - a - b - c;
    return {a + b * su + c * sv + d * su * sv, 30 * u * u * (u * (u - 2) + 1) * (b + d * sv),
            30 * v * v * (v * (v - 2) + 1) * (c + d * su)};
}

double Clouded(double x, double y, int octaves)
{
    double sum = 0;
    double weight = 0.5;
    double total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * Noise(x, y);
        total += weight;
        weight /= 2;
        // Turned a little each time, or the grid would show.
        const double turned = 1.6 * x - 1.2 * y + 5.3;
        y = 1.2 * x + 1.6 * y + 2.7;
        x = turned;
    }
    return sum / total;
}

double Dice::Between(double low, double high)
{
    state_ += 0x9E3779B97F4A7C15u;
    return low + (high - low) * Share(Scrambled(state_));
}

}  // namespace pixano::art
