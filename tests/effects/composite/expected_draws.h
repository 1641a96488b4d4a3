// The random numbers that a test expects, made from the generator's formulas and not by the
// program.
#pragma once

#include <cstdint>

namespace pixano::test {

/// The numbers that follow a seeding from that reading of the timer.
class ExpectedDraws {
  public:
    explicit ExpectedDraws(std::uint64_t reading) : s_(Mixed(reading)) {}

    /// In [0, 1).
    double Next()
    {
        s_ = s_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(s_ >> 40) / 16777216.0;
    }
    /// One of `first`, `first` + 1, ..., `count` of them.
    int OneOf(int count, int first) { return static_cast<int>(Next() * count) + first; }

  private:
    static std::uint64_t Mixed(std::uint64_t reading)
    {
        std::uint64_t z = reading + 0x9E3779B97F4A7C15ULL;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    std::uint64_t s_;
};

/// The first timer reading after whose seeding `wanted` (given the draws) holds.
template <typename Wanted>
std::uint64_t ReadingWhere(Wanted wanted)
{
    std::uint64_t reading = 2;
    while (!wanted(ExpectedDraws(reading)))
        ++reading;
    return reading;
}

}  // namespace pixano::test
