// The files of each format, made in a file of its own.
#pragma once

#include "pictures/bytes.h"

#include <vector>

namespace pixano::test {

std::vector<Bytes> BmpFiles();
std::vector<Bytes> JpegFiles();
std::vector<Bytes> GifFiles();

}  // namespace pixano::test
