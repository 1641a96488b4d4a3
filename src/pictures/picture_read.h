// What comes of reading a picture file. Knows neither format nor file.
#pragma once

#include "canvas/surface.h"

#include <cstddef>
#include <vector>

namespace pixano {

struct PictureRead {
    Surface picture;
    /// The file is incomplete or damaged: it ended before all pixels were there, or what it holds
    /// contradicts itself. Missing pixels show `Background`. (In a JPEG, those right of the last
    /// block that is there are grey; a progressive one may just be coarse; where the data makes no
    /// sense, pixels are as libjpeg repairs them.)
    bool truncated = false;
    /// The colour profile (ICC) that the file carries for red, green and blue; empty without one
    /// and where the picture came as a stream.
    std::vector<std::byte> profile{};
};

}  // namespace pixano
