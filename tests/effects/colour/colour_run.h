// What the tests of the colour effects share: sizes, strengths, and one run.
#pragma once

#include "support/effect_run.h"
#include "support/values.h"

#include <cstdint>
#include <vector>

namespace pixano::test {

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

/// Runs the catalogue's row of that name. That takes two readings of the timer before the effect:
/// the generator's own and the reseeding. The scripted one is the second.
inline EffectRun& ApplyRow(EffectRun& run, const char* name)
{
    return run.Apply(*FindEffect(name));
}

/// The picture after the effect.
inline Values After(void (*effect)(Work&), const Values& picture)
{
    return ValuesOf(EffectRun(Painted(picture)).Apply(effect).work.Picture1);
}
/// The picture after the effect with a strength of its own.
inline Values After(void (*effect)(Work&), int selector, double strength, const Values& picture)
{
    EffectRun run(Painted(picture));
    return ValuesOf(Use(run, selector, strength).Apply(effect).work.Picture1);
}

}  // namespace pixano::test
