// Why a picture file is not read or written, inside this floor. Knows no file name.
#pragma once

#include <stdexcept>

namespace pixano {

/// Thrown by whatever reads or writes one format. `what()` is the rest of an Italian sentence that
/// begins with the file's name: it starts in lower case and has no full stop.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace pixano
