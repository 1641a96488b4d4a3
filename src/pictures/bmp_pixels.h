// The pixels of a BMP file, from where the source stands. Knows the header, not where the file is.
#pragma once

#include "canvas/surface.h"
#include "files/byte_source.h"
#include "pictures/bmp_header.h"

namespace pixano {

/// Uncompressed rows; alpha is left out. False when the file ended before the last pixel.
bool ReadBmpRows(ByteSource& source, const BmpHeader& header, Surface& surface);

/// Runs of equal pixels. Pixels that the file skips are left as they are. False when the file ended
/// before the picture did.
bool ReadBmpRuns(ByteSource& source, const BmpHeader& header, Surface& surface);

/// Row `y` of the file is this row of the surface.
inline int RowOf(const BmpHeader& header, int y)
{
    return header.topDown ? y : header.height - 1 - y;
}

}  // namespace pixano
