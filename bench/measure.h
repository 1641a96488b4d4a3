// How the rows measure: each with what it is compared to, turn by turn, so that whatever else the
// machine does falls on both. Knows no effect.
#pragma once

#include "canvas/surface.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace pixano::bench {

/// Seconds that the call takes.
template <typename Call>
double Timed(Call&& call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Runs the row's iterations: `prepare` and `compared` outside its time, `measured` inside. The
/// counter `ratio` says how many times `compared` the row takes; both are medians.
template <typename Prepare, typename Compared, typename Measured>
double Measure(benchmark::State& state, const char* ratio, Prepare prepare, Compared compared,
               Measured measured)
{
    std::vector<double> own;
    std::vector<double> other;
    for ([[maybe_unused]] auto turn : state) {
        prepare();
        other.push_back(Timed(compared));
        own.push_back(Timed(measured));
        state.SetIterationTime(own.back());
    }
    state.counters[ratio] = Median(own) / Median(other);
    return Median(own);
}

/// A picture such as a camera makes: large soft shapes, hard edges, noise. The same on every run.
Surface Photograph(int width, int height);

}  // namespace pixano::bench
