// How large a picture may be. Knows no format.
#pragma once

#include <cstdint>
#include <string>

namespace pixano {

inline constexpr std::int64_t LongestSide = 32767;
inline constexpr std::int64_t MostPixels = std::int64_t{256} << 20;

/// What is said of a picture that is longer than `LongestSide`.
std::string LongestSideText();

/// Throws Refusal unless a picture of `width` by `height` pixels can be opened. Called before any
/// memory is asked for.
void CheckSize(std::int64_t width, std::int64_t height);

}  // namespace pixano
