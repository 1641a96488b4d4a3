// What comes of reading a picture file. Knows neither format nor file.
#pragma once

#include "canvas/surface.h"

#include <cstddef>
#include <vector>

namespace pixano {

struct PictureRead {
    Surface picture;
    /// The file ended before all pixels were there; the missing ones show `Background`. (In a JPEG,
    /// those right of the last block that is there are grey; a progressive one may just be coarse.)
    bool truncated = false;
    /// The colour profile (ICC) that the file carries for red, green and blue; empty without one.
    std::vector<std::byte> profile{};
};

}  // namespace pixano
