// Files of pictures: BMP, JPEG and GIF in, BMP out. Knows pixels, no window.
#pragma once

#include "canvas/surface.h"

#include <stdexcept>
#include <string>

namespace pixano {

/// A picture file cannot be read or written. `what()` is one Italian sentence without a full stop,
/// UTF-8, that says why.
class PictureError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct PictureRead {
    Surface picture;
    /// The file ended before all pixels were there; the missing ones show `Background`.
    bool truncated = false;
};

/// The picture in the file `path` (UTF-8). The format is told by the content, not by the name:
/// BMP, JPEG (turned upright by its Exif orientation) or GIF (its first frame; `Background` shows
/// through where it is transparent). Only regular files are read, of 1 to 32767 pixels a side and at
/// most 256 Mpixel. Every pixel of the result is defined by the file alone. Throws PictureError.
PictureRead ReadPicture(const std::string& path);

/// Writes the surface as an uncompressed 24-bit BMP, bottom-up with a 40-byte header, to the file
/// `path` (UTF-8). The file appears, or replaces an old one, only when it is complete and on disk; when
/// anything fails the old file is untouched and no new one is left. Throws PictureError.
void SaveBitmap(const Surface& surface, const std::string& path);

}  // namespace pixano
