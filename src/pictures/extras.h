// What a picture file carries beside its pixels. Knows no format.
#pragma once

#include <cstddef>
#include <vector>

namespace pixano {

/// What a file may carry besides the pixels, where its format has a place for it.
struct Extras {
    int quality = 95;                  ///< of a JPEG, 1 to 100
    std::vector<std::byte> profile{};  ///< as in `PictureRead`; a BMP has none
};

}  // namespace pixano
