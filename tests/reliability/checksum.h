// A picture as one number, for telling it through a pipe.
#pragma once

#include "canvas/surface.h"

#include <cstdint>
#include <string>

namespace pixano::test {

/// The same for the same size and colours, and hardly ever for others.
inline std::string Checksum(const Surface& picture)
{
    std::uint64_t sum = 14695981039346656037U;
    const auto add = [&sum](std::uint32_t value) { sum = (sum ^ value) * 1099511628211U; };
    add(static_cast<std::uint32_t>(picture.Width()));
    for (int y = 0; y < picture.Height(); ++y)
        for (const std::uint32_t pixel : picture.Row(y))
            add(pixel);
    return std::to_string(sum);
}

}  // namespace pixano::test
