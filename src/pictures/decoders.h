// One function a format that pictures are read from. Known inside this floor only.
#pragma once

#include "files/byte_source.h"
#include "pictures/picture_read.h"

namespace pixano {

/// Each reads the picture from the source's start, whose first bytes are known to be the format's.
/// Throws Refusal; an error of the source itself is left for the caller to tell.
PictureRead DecodeBmp(ByteSource& source);
PictureRead DecodeJpeg(ByteSource& source);
PictureRead DecodeGif(ByteSource& source);

}  // namespace pixano
