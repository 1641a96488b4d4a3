// What the system says when a file cannot be read or written, in Italian.
#pragma once

#include <string>

namespace pixano {

/// The rest of a sentence that begins with the file's name ("non c'è più spazio sul disco").
std::string SystemReason(int error);

}  // namespace pixano
