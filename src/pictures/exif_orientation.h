// Which way up a photograph was taken, as its Exif block says. Knows no JPEG and no pixels.
#pragma once

#include <cstddef>
#include <span>

namespace pixano {

bool BeginsAsExif(std::span<const std::byte> segment);

/// The orientation, 1 to 8, in the content of an APP1 segment (from "Exif" on); 1 when there is
/// none or the block makes no sense.
int ExifOrientation(std::span<const std::byte> segment);

}  // namespace pixano
