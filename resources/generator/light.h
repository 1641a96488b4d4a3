// Points and colours of the scene as numbers, and smooth steps between them. Uses only operations
// that every machine rounds alike, so that the drawing never changes by a bit.
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace pixano::art {

/// A place, a direction or, from 0 to 1 each, red, green and blue.
struct Triple {
    double x, y, z;

    Triple operator+(const Triple& b) const { return {x + b.x, y + b.y, z + b.z}; }
    Triple operator-(const Triple& b) const { return {x - b.x, y - b.y, z - b.z}; }
    Triple operator*(double f) const { return {x * f, y * f, z * f}; }
    Triple operator*(const Triple& b) const { return {x * b.x, y * b.y, z * b.z}; }
};

inline double Dot(const Triple& a, const Triple& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Triple Unit(const Triple& a)
{
    return a * (1 / std::sqrt(Dot(a, a)));
}

inline double Mix(double a, double b, double share)
{
    return a + (b - a) * share;
}

inline Triple Mix(const Triple& a, const Triple& b, double share)
{
    return a + (b - a) * share;
}

/// 0 below `from`, 1 above `to`, a smooth way between; `from` may be the greater one.
inline double Step(double from, double to, double at)
{
    const double t = std::clamp((at - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

inline QColor ToColour(const Triple& light)
{
    const auto level = [](double part) {
        return static_cast<int>(std::clamp(part, 0.0, 1.0) * 255 + 0.5);
    };
    return {level(light.x), level(light.y), level(light.z)};
}

}  // namespace pixano::art
