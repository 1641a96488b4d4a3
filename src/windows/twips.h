// Lengths in twips, the unit in which window sizes and places are stated.
#pragma once

#include <QtMath>

namespace pixano {

inline constexpr double TwipsPerPixel = 15;

/// Whole pixels, to nearest.
inline int Pixels(double twips)
{
    return qRound(twips / TwipsPerPixel);
}

}  // namespace pixano
