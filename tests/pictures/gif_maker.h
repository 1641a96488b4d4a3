// GIF files for tests, spelt out piece by piece.
#pragma once

#include "pictures/bytes.h"

#include <algorithm>

namespace pixano::test {

/// The four colours of these tests, as a colour table; `gif` gives them letters.
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

/// Codes of one more bit than a pixel has, in blocks of `blockLength` bytes.
inline Bytes GifCoded(const std::vector<int>& codes, int pixelBits, std::size_t blockLength = 255)
{
    const auto bits = static_cast<std::size_t>(pixelBits) + 1;
    std::vector<int> packed(codes.size() * bits / 8 + 1);
    for (std::size_t i = 0; i < codes.size() * bits; ++i)
        if ((codes[i / bits] >> i % bits & 1) != 0) packed[i / 8] |= 1 << i % 8;
    Bytes data{pixelBits};
    for (std::size_t i = 0; i < packed.size(); i += blockLength) {
        const std::size_t count = std::min(blockLength, packed.size() - i);
        data.Add({static_cast<int>(count)});
        for (std::size_t k = 0; k < count; ++k)
            data.Add({packed[i + k]});
    }
    return data.Add({0});
}

/// Indices of so many bits each: after every second one the code table is cleared, so that codes
/// never grow longer.
inline Bytes GifPixels(const std::vector<int>& indices, std::size_t blockLength = 255,
                       int pixelBits = 2)
{
    const int clear = 1 << pixelBits;
    std::vector<int> codes;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        if (i % 2 == 0) codes.push_back(clear);
        codes.push_back(indices[i]);
    }
    codes.push_back(clear + 1);
    return GifCoded(codes, pixelBits, blockLength);
}

inline const Bytes GifEnd{0x3B};

namespace gif {

inline constexpr Colour A = GifColours[0];
inline constexpr Colour B = GifColours[1];
inline constexpr Colour C = GifColours[2];
inline constexpr Colour D = GifColours[3];
inline constexpr Colour Hole = Background;

inline Bytes File(std::initializer_list<Bytes> pieces)
{
    Bytes file;
    for (const Bytes& piece : pieces)
        file.Add(piece);
    return file;
}

}  // namespace gif

}  // namespace pixano::test
