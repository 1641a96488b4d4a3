// The random numbers that an effect must have drawn, told from the formulas alone: the generator
// under test has no part in it.
#pragma once

#include <cmath>
#include <cstdint>

namespace pixano::test {

/// A generator whose timer counts: the first reading seeds it, each `Randomize` takes the next one.
class ReferenceRandom {
  public:
    explicit ReferenceRandom(std::uint64_t firstReading) : reading_(firstReading) { Randomize(); }

    void Randomize()
    {
        std::uint64_t z = reading_++ + 0x9E3779B97F4A7C15;
        z ^= z >> 30;
        z *= 0xBF58476D1CE4E5B9;
        z ^= z >> 27;
        z *= 0x94D049BB133111EB;
        s_ = z ^ (z >> 31);
    }

    double Rnd()
    {
        s_ = 6364136223846793005 * s_ + 1442695040888963407;
        return std::ldexp(static_cast<double>(s_ >> 40), -24);
    }
    /// Int(Rnd * count).
    int Whole(double count) { return static_cast<int>(std::floor(Rnd() * count)); }

  private:
    std::uint64_t reading_;
    std::uint64_t s_ = 0;
};

/// The first timer reading from 1 on that `accepts` takes: a test picks the draws that it wants.
template <typename Accepts>
std::uint64_t FirstReadingWhere(Accepts accepts)
{
    std::uint64_t reading = 1;
    while (!accepts(reading))
        ++reading;
    return reading;
}

}  // namespace pixano::test
