// BMP files for tests, with whatever head a test wants to try.
#pragma once

#include "pictures/bytes.h"

#include <algorithm>

namespace pixano::test {

/// What stands in the head of a BMP; the rest follows from it.
struct BmpHead {
    std::uint32_t size = 40;
    int width = 1;
    int height = 1;
    unsigned bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t colours = 0;
    unsigned planes = 1;
    /// What the file says, if not where the pixels really are.
    std::int64_t offset = -1;
};

/// A file of that head; `extra` (masks, palette) lies between the head and the pixels. A head
/// longer than 40 bytes takes its first bytes beyond the 40th from `extra` too.
inline Bytes Bmp(const BmpHead& head, const Bytes& extra, const Bytes& pixels)
{
    Bytes fields;
    if (head.size == 12) {
        fields.U16(static_cast<std::uint32_t>(head.width))
            .U16(static_cast<std::uint32_t>(head.height))
            .U16(head.planes)
            .U16(head.bits);
    } else {
        fields.U32(static_cast<std::uint32_t>(head.width))
            .U32(static_cast<std::uint32_t>(head.height))
            .U16(head.planes)
            .U16(head.bits)
            .U32(head.compression)
            .Zeros(12)
            .U32(head.colours)
            .Zeros(4);
        fields.Vector().resize(std::min<std::size_t>(head.size, 40) - 4);
    }
    const std::size_t offset = 14 + 4 + fields.Size() + extra.Size();
    Bytes file;
    file.Add("BM").U32(static_cast<std::uint32_t>(offset + pixels.Size())).U32(0);
    file.U32(static_cast<std::uint32_t>(head.offset < 0 ? static_cast<std::int64_t>(offset)
                                                        : head.offset));
    return file.U32(head.size).Add(fields).Add(extra).Add(pixels);
}

}  // namespace pixano::test
