#include "canvas/random.h"

#include <chrono>

namespace pixano {
namespace {

/// Spreads neighbouring readings over all 64 bits, so that reseeding from a clock that has hardly
/// moved still starts an unrelated sequence.
std::uint64_t Scrambled(std::uint64_t reading)
{
    std::uint64_t z = reading + 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
}

std::uint64_t NanosecondsOfDay()
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(duration_cast<nanoseconds>(now % days(1)).count());
}

}  // namespace

std::uint64_t Timer::Read()
{
    return next_ ? (*next_)++ : NanosecondsOfDay();
}

Random::Random(Timer timer) : timer_(timer)
{
    Randomize();
}

void Random::Randomize()
{
    state_ = Scrambled(timer_.Read());
}

}  // namespace pixano
