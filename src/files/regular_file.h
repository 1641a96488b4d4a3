// Opening a file for reading: regular files only, never waiting. Knows not what is in them.
#pragma once

#include "files/descriptor.h"

#include <cstdint>
#include <string>

namespace pixano {

enum class Links { Followed, Refused };

struct RegularFile {
    Descriptor descriptor;
    std::uint64_t size = 0;
};

/// Throws Refusal when `path` (UTF-8) is missing, no regular file or not readable.
RegularFile OpenRegularFile(const std::string& path, Links links);

/// Throws Refusal, saying what it is, unless `mode` (of a stat) is a regular file's.
void RequireRegular(unsigned mode);

}  // namespace pixano
