// How the rows measure: each with what it is compared to, turn by turn, so that whatever else the
// machine does falls on both. Knows no effect.
#pragma once

#include "canvas/surface.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace pixano::bench {

/// Seconds that the call takes.
template <typename Call>
double Timed(Call&& call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs the row's iterations: `prepare`, `compared` and `between` outside its time, `measured`
/// inside. The counter `ratio` says how many times `compared` the row takes; of both the shortest
/// time counts, the one least disturbed. Gives that of the row, in seconds.
template <typename Prepare, typename Compared, typename Measured,
          typename Between = decltype([] {})>
double Measure(benchmark::State& state, const char* ratio, Prepare prepare, Compared compared,
               Measured measured, Between between = {})
{
    double own = std::numeric_limits<double>::max();
    double other = own;
    for ([[maybe_unused]] auto turn : state) {
        prepare();
        other = std::min(other, Timed(compared));
        between();
        const double seconds = Timed(measured);
        own = std::min(own, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters[ratio] = own / other;
    return own;
}

/// A picture such as a camera makes: large soft shapes, hard edges, noise. The same on every run.
Surface Photograph(int width, int height);

}  // namespace pixano::bench
