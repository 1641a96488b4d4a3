// The program's one random generator and the timer that seeds it.
#pragma once

#include <cstdint>
#include <optional>

namespace pixano {

/// What the generator is seeded from: the time of day, or a count for results that can be repeated.
class Timer {
  public:
    /// Nanoseconds of the time of day.
    Timer() = default;
    /// Readings `first`, `first` + 1, `first` + 2, ...
    explicit Timer(std::uint64_t first) : next_(first) {}

    std::uint64_t Read();

  private:
    std::optional<std::uint64_t> next_;
};

/// Uniform numbers in [0, 1). Seeded when made and at every `Randomize`, each time from one reading
/// of the timer.
class Random {
  public:
    explicit Random(Timer timer);

    void Randomize();

    double Rnd()
    {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 40) * 0x1p-24;
    }

  private:
    Timer timer_;
    std::uint64_t state_ = 0;
};

}  // namespace pixano
