// How long a test may go on, and how long it has.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <ctime>

namespace pixano::test {

/// Whether the tests run in their long form.
inline bool IsLong()
{
    return std::getenv("PIXANO_LONG") != nullptr;
}

/// What chance starts from; another number tries other things.
inline std::uint64_t FirstSeed()
{
    const char* const given = std::getenv("PIXANO_SEED");
    return given == nullptr ? 20240 : std::strtoull(given, nullptr, 10);
}

/// The processor's time that this thread has used.
inline double SecondsUsed()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

}  // namespace pixano::test
