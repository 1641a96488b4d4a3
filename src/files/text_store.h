// The pixel working file as text on disk: one decimal number a line, lines ended by CR LF.
#pragma once

#include "canvas/pixel_file.h"

#include <memory>
#include <string>

namespace pixano {

/// Values kept as text in the file `name` (UTF-8; a bare name lies in the current folder).
std::unique_ptr<PixelFile::Store> TextStore(std::string name);

}  // namespace pixano
