// What comes of reading a picture file. Knows neither format nor file.
#pragma once

#include "canvas/surface.h"

namespace pixano {

struct PictureRead {
    Surface picture;
    /// The file ended before all pixels were there; the missing ones show `Background`. (In a JPEG,
    /// those right of the last block that is there are grey; a progressive one may just be coarse.)
    bool truncated = false;
};

}  // namespace pixano
