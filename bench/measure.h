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

/// The seconds that something took, turn by turn.
class Times {
  public:
    void Add(double seconds) { seconds_.push_back(seconds); }
    /// Of the turn least disturbed.
    double Shortest() const { return *std::ranges::min_element(seconds_); }
    double Median() const
    {
        auto sorted = seconds_;
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 2];
    }

  private:
    std::vector<double> seconds_;
};

/// Runs the row's iterations: `prepare`, `compared` and `between` outside its time, `measured`
/// inside. The counter `ratio` says how many times `compared` the row takes, by the shortest time
/// of each, `x_median` the same by their medians. Gives the row's shortest, in seconds.
template <typename Prepare, typename Compared, typename Measured,
          typename Between = decltype([] {})>
double Measure(benchmark::State& state, const char* ratio, Prepare prepare, Compared compared,
               Measured measured, Between between = {})
{
    Times own;
    Times other;
    for ([[maybe_unused]] auto turn : state) {
        prepare();
        other.Add(Timed(compared));
        between();
        const double seconds = Timed(measured);
        own.Add(seconds);
        state.SetIterationTime(seconds);
    }
    state.counters[ratio] = own.Shortest() / other.Shortest();
    state.counters["x_median"] = own.Median() / other.Median();
    return own.Shortest();
}

/// A picture such as a camera makes: large soft shapes, hard edges, noise. The same on every run.
Surface Photograph(int width, int height);

}  // namespace pixano::bench
