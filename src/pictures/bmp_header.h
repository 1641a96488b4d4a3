// What the head of a BMP file says: size, kind of pixels, palette, masks. Reads no pixels.
#pragma once

#include "files/byte_source.h"

#include <array>
#include <cstdint>
#include <vector>

namespace pixano {

enum class BmpCoding { Plain, Masks, Rle4, Rle8, Rle24 };

struct BmpHeader {
    int width = 0;
    int height = 0;
    bool topDown = false;
    int bits = 0;
    BmpCoding coding = BmpCoding::Plain;
    /// Which bits of a 16-bit or 32-bit pixel are red, green and blue.
    std::array<std::uint32_t, 3> masks{};
    /// 256 colours as they lie in a surface; black for those that the file does not have.
    std::vector<std::uint32_t> palette;
};

/// Reads from the source's start and leaves it where the pixels begin. Throws Refusal for what
/// cannot be read as a picture.
BmpHeader ReadBmpHeader(ByteSource& source);

}  // namespace pixano
