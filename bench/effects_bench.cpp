// One row for each effect of the catalogue, working file in memory, as a multiple of memcpy of the
// same canvas.
#include "effects/catalogue.h"
#include "effects/frame.h"
#include "measure.h"

#include <cstring>
#include <string>
#include <vector>

namespace pixano::bench {
namespace {

constexpr Strengths ShippedStrengths{0, 1000, 5000, 5000, 5000, 5000};

void Run(Work& w, const Effect& effect)
{
    w.Valori = ShippedStrengths;
    RunOnCanvas(w, effect);
}

bool Faults(Work& w, const Effect& effect, const Surface& picture)
{
    PutOnCanvas(w, picture);
    try {
        Run(w, effect);
        return false;
    } catch (const Fault&) {
        return true;
    }
}

/// Whether the effect takes a picture of that width whatever numbers it draws.
bool TakesWidth(Work& w, const Effect& effect, int width)
{
    constexpr int Draws = 50;
    const Surface strip = Photograph(width, 8);
    for (int i = 0; i < Draws; ++i)
        if (Faults(w, effect, strip)) return false;
    return true;
}

/// The largest picture that the effect takes: those that keep it in a matrix stop at 1500 a side,
/// or one before when they look one place further.
const Surface& LargestPicture(Work& w, const Effect& effect)
{
    static const Surface large = Photograph(4000, 3000);
    static const Surface small = Photograph(1500, 1500);
    static const Surface smaller = Photograph(1499, 1499);
    if (TakesWidth(w, effect, large.Width())) return large;
    return Faults(w, effect, small) ? smaller : small;
}

void EffectRow(benchmark::State& state, const Effect& effect)
{
    Progress progress;
    Work w(MemoryStore(), progress, Timer(1));
    const Surface& picture = LargestPicture(w, effect);
    const auto pixels = static_cast<std::size_t>(picture.Width() * picture.Height());
    std::vector<std::uint32_t> copy(pixels);
    const double seconds = Measure(
        state, "x_memcpy", [&] { PutOnCanvas(w, picture); },
        [&] {
            std::memcpy(copy.data(), picture.Pixels(), pixels * sizeof(std::uint32_t));
            benchmark::ClobberMemory();
        },
        [&] { Run(w, effect); });
    state.counters["ns_pixel"] = seconds * 1e9 / static_cast<double>(pixels);
    state.SetLabel(std::to_string(picture.Width()) + "x" + std::to_string(picture.Height()));
}

const bool registered = [] {
    for (const Effect& effect : Effects)
        benchmark::RegisterBenchmark(
            ("Effetto/" + std::string(effect.name)).c_str(),
            [&effect](benchmark::State& state) { EffectRow(state, effect); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
}  // namespace pixano::bench
