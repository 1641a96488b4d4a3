// One effect of the chain as it is written on the command line: NOME or NOME=FORZA.
#pragma once

#include "effects/catalogue.h"

#include <optional>
#include <stdexcept>
#include <string_view>

namespace pixano::batch {

/// The command line cannot be followed. `what()` is an Italian sentence, UTF-8.
class WrongCommandLine : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Step {
    const Effect* effect = nullptr;
    /// The strength given with the effect; without one "valori.tip" decides.
    std::optional<double> strength;
};

/// Throws WrongCommandLine: no effect of exactly that name (the nearest one is then named), a
/// strength for an effect that takes none, a strength that is no number.
Step ParseStep(std::string_view text);

}  // namespace pixano::batch
