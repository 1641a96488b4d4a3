// Pictures from standard input and to standard output. Knows no effect.
#pragma once

#include "pictures/picture_files.h"

namespace pixano::batch {

/// The picture that standard input holds up to its end. Throws PictureError.
PictureRead ReadStandardInput();

/// Writes the surface as a BMP to standard output. Throws PictureError.
void WriteStandardOutput(const Surface& surface);

}  // namespace pixano::batch
