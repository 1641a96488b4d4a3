// The colour profile (ICC) that a picture's file carries, wherever its format keeps it. Knows no
// pixels.
#pragma once

#include "files/byte_source.h"

#include <vector>

namespace pixano {

/// The profile in a BMP, JPEG or GIF; empty when there is none, when it is not one of red, green
/// and blue (the pixels of a `Surface` are), is not as long as it says, or is longer than 2 MB.
/// Leaves the source anywhere.
std::vector<std::byte> ProfileIn(ByteSource& source);

}  // namespace pixano
