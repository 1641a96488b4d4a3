// Irregularity that is the same at every run: smooth noise over the plane and a row of dice throws.
#pragma once

#include <cstdint>

namespace pixano::art {

/// A height of the noise and how steeply it rises along both axes.
struct Swell {
    double height;  ///< 0 to 1
    double alongX, alongY;
};

Swell NoiseSwell(double x, double y);

inline double Noise(double x, double y)
{
    return NoiseSwell(x, y).height;
}

/// `octaves` layers of noise, each twice as fine and half as strong; 0 to 1.
double Clouded(double x, double y, int octaves);

/// Throws of a die, always the same ones for the same `start`.
class Dice {
  public:
    explicit Dice(std::uint64_t start) : state_(start) {}

    /// From `low` up to `high`.
    double Between(double low, double high);

  private:
    std::uint64_t state_;
};

}  // namespace pixano::art
