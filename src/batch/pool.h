// Several pictures at once, each on its own. Knows nothing of what is done to them.
#pragma once

#include <cstddef>
#include <functional>

namespace pixano::batch {

/// Calls `job` once for each place from 0 to `count` - 1, lower places first, on up to `threads`
/// threads at a time. `job` must not throw.
void ForEachPlace(std::size_t count, unsigned threads,
                  const std::function<void(std::size_t place)>& job);

}  // namespace pixano::batch
