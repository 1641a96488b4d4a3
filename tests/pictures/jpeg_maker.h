// JPEG files for tests, made by libjpeg, and its own plain way of reading them.
#pragma once

#include "pictures/bytes.h"

#include <cstdio>
#include <functional>

#include <jpeglib.h>

namespace pixano::test {

/// A file of `width` by `height` pixels; `samples` holds `components` bytes for each, `space` says
/// what they are. `set` may change anything that libjpeg lets one change, the last thing before the
/// pixels; `write` (if given) writes markers before them.
struct JpegPlan {
    int width = 1;
    int height = 1;
    J_COLOR_SPACE space = JCS_RGB;
    std::vector<std::uint8_t> samples{};
    std::function<void(jpeg_compress_struct&)> set{};
    std::function<void(jpeg_compress_struct&)> write{};
};
Bytes MakeJpeg(const JpegPlan& plan);

/// The surface's colours at the best quality, nothing blurred.
Bytes MakeJpeg(const Surface& surface, const std::function<void(jpeg_compress_struct&)>& set = {},
               const std::function<void(jpeg_compress_struct&)>& write = {});

/// Several scans, each finer than the last.
inline void Progressive(jpeg_compress_struct& jpeg)
{
    jpeg_simple_progression(&jpeg);
}

/// The file with the sides of its frame header replaced.
Bytes WithSides(Bytes file, int width, int height);

/// A progressive grey file (77 everywhere) in which the last of three scans, which goes through all
/// pixels again and changes none, comes `scans` times: a script may name each bit only once.
Bytes WithScans(int width, int height, int scans);

/// A sound progressive grey file (77 everywhere) of so many scans, 700 at most: one for all light,
/// and one for each bit of each of its 63 patterns.
Bytes InScans(int width, int height, int scans);

/// The pixels that libjpeg gives in the order red, green, blue.
Colours DecodedByLibjpeg(const Bytes& file);

/// How often libjpeg warns of damage while it reads the pixels.
long WarningsOfLibjpeg(const Bytes& file);

/// A picture with gentle colours all over, so that nothing in it is like anything else.
Surface Shaded(int width, int height);

}  // namespace pixano::test
