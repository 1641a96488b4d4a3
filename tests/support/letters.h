// Small pictures drawn in letters, so that a test shows what it expects.
#pragma once

#include "canvas/surface.h"

#include <string>
#include <vector>

namespace pixano::test {

using Letters = std::vector<std::string>;

/// One colour a letter: '#' black, '.' the background, '~' white (also what -1 is drawn as); every
/// other character its own colour, never one of these three.
inline Colour ColourOf(char letter)
{
    switch (letter) {
    case '#':
        return 0;
    case '.':
        return Background;
    case '~':
        return White;
    default:
        return 0x101010 + 0x010203 * static_cast<unsigned char>(letter) % 0x800000;
    }
}

/// The surface drawn by rows of equal length, one letter a pixel.
inline Surface Drawn(const Letters& rows)
{
    Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            surface.PSet(x, y,
                         ColourOf(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return surface;
}

/// The letters of a surface; '?' for a colour that no letter has.
inline Letters LettersOf(const Surface& surface)
{
    Letters rows;
    for (int y = 0; y < surface.Height(); ++y) {
        std::string& row = rows.emplace_back();
        for (int x = 0; x < surface.Width(); ++x) {
            char letter = '~';
            while (letter >= ' ' && ColourOf(letter) != surface.Point(x, y))
                --letter;
            row += letter < ' ' ? '?' : letter;
        }
    }
    return rows;
}

}  // namespace pixano::test
