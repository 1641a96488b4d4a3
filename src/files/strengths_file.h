// The file "valori.tip", which keeps the five effect strengths. Knows neither where it lies nor who
// changes them.
#pragma once

#include "canvas/strengths.h"

#include <string>

namespace pixano {

/// Reads cells 1 to 5 from the file `path` (UTF-8), one item each: the number that its text begins
/// with, 0 where there is none. A link to a regular file is followed. Throws FileNotFound,
/// FileAccess, Overflow, or InputPastEnd when there are fewer than five; the cells are unchanged
/// then.
void LeggiValori(const std::string& path, Strengths& valori);

/// Writes cells 1 to 5 to the file `path` (UTF-8), one a line. An old file, or a link, is replaced
/// only by a complete one; what a link leads to stays as it is. Throws FileAccess or DiskFull.
void SalvaValori(const std::string& path, const Strengths& valori);

}  // namespace pixano
