// What the tests of the colour effects share: sizes, strengths, and the fault that a run ends in.
#pragma once

#include "canvas/fault.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace pixano::test {

struct Size {
    int width;
    int height;
};
inline const std::vector<Size> SmallSizes{{1, 1}, {1, 8},   {9, 1},   {2, 2},   {3, 3},
                                          {7, 5}, {16, 16}, {99, 99}, {101, 81}};
/// The largest pictures that fit into a matrix.
inline const std::vector<Size> MatrixSizes{{1500, 1500}, {1500, 8}, {8, 1500}};

/// Puts a strength into the cell of `selector` and that cell in use.
inline EffectRun& Use(EffectRun& run, int selector, double strength)
{
    run.work.Valori.at(static_cast<std::size_t>(selector)) = strength;
    run.work.IndValore = static_cast<std::int16_t>(selector);
    return run;
}

/// What kind of fault ends the effect; nothing when it runs through.
inline std::optional<FaultKind> FaultOf(EffectRun& run, void (*effect)(Work&))
{
    try {
        run.Apply(effect);
    } catch (const Fault& fault) {
        return fault.Kind();
    }
    return {};
}

}  // namespace pixano::test
