// GIF files for tests, spelt out piece by piece.
#pragma once

#include "pictures/bytes.h"

#include <algorithm>

namespace pixano::test {

/// The four colours of these tests, as a colour table.
inline constexpr Colour GifColours[] = {Rgb(1, 2, 3), Rgb(40, 50, 60), Rgb(255, 0, 0), White};
inline const Bytes GifTable{1, 2, 3, 40, 50, 60, 255, 0, 0, 255, 255, 255};

/// The head of a file and its screen, with the table of four colours if `table`.
inline Bytes GifScreen(std::uint32_t width, std::uint32_t height, bool table = true)
{
    Bytes head = Bytes().Add("GIF89a").U16(width).U16(height).Add({table ? 0x81 : 0x01, 0, 0});
    return table ? head.Add(GifTable) : head;
}

inline Bytes GifTransparency(int index)
{
    return {0x21, 0xF9, 4, 1, 0, 0, index, 0};
}

/// A frame's head; `flags`: 0x40 interlaced, 0x81 a table of four colours of its own follows.
inline Bytes GifFrame(std::uint32_t left, std::uint32_t top, std::uint32_t width,
                      std::uint32_t height, int flags = 0)
{
    return Bytes{0x2C}.U16(left).U16(top).U16(width).U16(height).Add({flags});
}

/// Indices of two bits, coded in three bits each: after every second one the code table is cleared,
/// so that codes never grow longer. `blockLength` bytes make a block.
inline Bytes GifPixels(const std::vector<int>& indices, std::size_t blockLength = 255)
{
    constexpr int Clear = 4;
    constexpr int End = 5;
    std::vector<int> codes;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        if (i % 2 == 0) codes.push_back(Clear);
        codes.push_back(indices[i]);
    }
    codes.push_back(End);
    std::vector<int> packed(codes.size() * 3 / 8 + 1);
    for (std::size_t i = 0; i < codes.size() * 3; ++i)
        if ((codes[i / 3] >> i % 3 & 1) != 0) packed[i / 8] |= 1 << i % 8;
    Bytes data{2};
    for (std::size_t i = 0; i < packed.size(); i += blockLength) {
        const std::size_t count = std::min(blockLength, packed.size() - i);
        data.Add({static_cast<int>(count)});
        for (std::size_t k = 0; k < count; ++k)
            data.Add({packed[i + k]});
    }
    return data.Add({0});
}

inline const Bytes GifEnd{0x3B};

}  // namespace pixano::test
