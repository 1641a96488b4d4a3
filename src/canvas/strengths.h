// The five effect strengths as effects see them.
#pragma once

#include <array>

namespace pixano {

/// `Valori`: cell 0 is unused, cells 1 to 5 hold one strength each.
using Strengths = std::array<double, 6>;

}  // namespace pixano
