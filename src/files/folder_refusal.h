// Why a folder takes no new file, or does not let go of one.
#pragma once

#include "files/refusal.h"

namespace pixano {

/// Throws the Refusal of a file that could not be made in `folder`, or not be taken out of it.
/// `error` is the errno of that.
[[noreturn]] void RefuseIn(const std::string& folder, int error);

}  // namespace pixano
