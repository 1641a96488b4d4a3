// Runs one effect on a small picture, without windows, and keeps what it told about its progress.
#pragma once

#include "effects/catalogue.h"
#include "effects/frame.h"
#include "support/faults.h"
#include "support/letters.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace pixano::test {

/// Keeps every value handed to the progress routine, and where the progress window was shown.
class RecordedProgress : public Progress {
  public:
    void Show() override { shownAfter = static_cast<int>(values.size()); }
    void Avanzamento(double n, int alt) override
    {
        Progress::Avanzamento(n, alt);
        values.push_back(n);
    }

    std::vector<double> values;
    /// How many values had been told when the window was shown; -1 = never shown.
    int shownAfter = -1;
};

/// A picture, the state that effects share, and a timer that counts from `seed`.
class EffectRun {
  public:
    explicit EffectRun(Surface picture, std::uint64_t seed = 1)
        : work(MemoryStore(), progress, Timer(seed))
    {
        Load(std::move(picture));
    }
    explicit EffectRun(const Letters& rows, std::uint64_t seed = 1) : EffectRun(Drawn(rows), seed)
    {
    }

    /// Puts another picture on the canvas; matrices and random numbers live on.
    void Load(Surface picture) { PutOnCanvas(work, std::move(picture)); }

    /// Runs the loops in a frame that neither reseeds nor chooses a strength.
    EffectRun& Apply(void (*loops)(Work&))
    {
        return Apply({.name = "", .run = loops, .family = Family::Geometry});
    }
    /// Runs a row of the catalogue.
    EffectRun& Apply(const Effect& effect)
    {
        progress.values.clear();
        progress.shownAfter = -1;
        RunOnCanvas(work, effect);
        return *this;
    }

    Letters Result() const { return LettersOf(work.Picture1); }

    RecordedProgress progress;
    Work work;
};

/// The run-time error that the effect ends in; nothing when it runs through.
inline std::optional<FaultKind> FaultOf(EffectRun& run, void (*effect)(Work&))
{
    return FaultIn([&] { run.Apply(effect); });
}

/// Of a picture, in pixels.
struct Size {
    int width;
    int height;
};

/// A picture of that size in which no two neighbours, and hardly any two pixels, are alike.
inline Surface Varied(int width, int height)
{
    Surface surface(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            surface.PSet(x, y, static_cast<Colour>(x * 7919U + y * 104729U + 12345U) & White);
    return surface;
}

/// `first`, `first` + `step`, ... up to `last`.
inline std::vector<double> Steps(double first, double last, double step = 1)
{
    std::vector<double> values;
    for (double value = first; value <= last; value += step)
        values.push_back(value);
    return values;
}

}  // namespace pixano::test
