// On which sizes each effect paints and on which it ends in a run-time error, told from what the
// effects are, not by the program.
#pragma once

#include "support/effect_run.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

namespace pixano::test {

/// Nothing where chance decides.
using Expected = std::optional<bool>;

namespace sizes {

/// The matrices have the columns and rows 0 to 1500.
constexpr int Last = 1500;

/// The whole picture goes into a matrix, with the column and the row outside it.
inline Expected Captured(Size size)
{
    return std::max(size.width, size.height) <= Last;
}

/// The first column read is that of ratio - 1: below one half it rounds to -1.
inline Expected TurnedLeft(Size size)
{
    return Captured(size).value() && 2 * size.width >= size.height;
}

/// The same of rows. The last row reads the column of one ratio more than the picture is wide.
inline Expected TurnedRight(Size size)
{
    const double last = size.width + static_cast<double>(size.width) / size.height;
    return Captured(size).value() && 2 * size.height >= size.width && last <= Last + 0.5;
}

/// A tile at the edge may reach column or row 1501.
inline Expected InTiles(Size size)
{
    const int longer = std::max(size.width, size.height);
    return longer == Last + 1 ? std::nullopt : Expected(longer <= Last);
}

/// Every fifth pixel at the least of a side of 32767 is too many; a row of no height is none.
inline Expected Strewn(Size size)
{
    return size.height <= 3000 && (size.width <= 3000 || size.height < 2);
}

/// Too narrow for bands; the last place written is that of the width.
inline Expected StepsAcross(Size size)
{
    return size.width >= 6 && size.width <= Last && size.height <= Last + 1;
}

inline Expected StepsDown(Size size)
{
    return size.height >= 6 && size.height <= Last && size.width <= Last + 1;
}

/// Sides of 1 or 2 pixels make a factor that rounds to the first cell; up to 12 they cannot be
/// squeezed, whatever the bands. From 40 on they are, and half of them at least remains.
inline Expected Squeezed(int side)
{
    if (side <= 2 || (side >= 40 && side <= Last + 2)) return true;
    if (side <= 12 || side > 2 * (Last + 1) + 40) return false;
    return std::nullopt;
}

}  // namespace sizes

/// Whether that effect paints a picture of that size, at a strength of 2500.
inline Expected Paints(std::string_view effect, Size size)
{
    using namespace sizes;
    static const std::map<std::string_view, Expected (*)(Size)> rules{
        {"Rotazione -90°", TurnedLeft},
        {"Rotazione +90°", TurnedRight},
        {"Distorsione 2", InTiles},
        {"Foto Color Rnd", Captured},
        {"Forbici", Captured},
        {"Mini Foto Rnd", Strewn},
        {"Multi Step Verticale", StepsAcross},
        {"Multi Step Orizzontale", StepsDown},
        {"MultiFoto Step", [](Size s) { return Expected(*StepsAcross(s) && *StepsDown(s)); }},
        {"Deformazione Casuale",
         [](Size s) {
             const Expected across = Squeezed(s.width);
             const Expected down = Squeezed(s.height);
             if (across == false || down == false) return Expected(false);
             return across && down ? Expected(true) : std::nullopt;
         }},
        {"Mix Verticale", Captured},
        {"Mix Orizzontale", Captured},
        {"Mix Multifoto", Captured},
    };
    const auto rule = rules.find(effect);
    return rule == rules.end() ? Expected(true) : rule->second(size);
}

}  // namespace pixano::test
