// Why a folder takes no new file, or does not let go of one.
#pragma once

#include "files/refusal.h"

namespace pixano {

/// What to say when a file could not be made in `folder`, or not be taken out of it. `error` is the
/// errno of that.
Refusal FolderRefusal(int error, const std::string& folder);

}  // namespace pixano
