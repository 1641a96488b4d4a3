// What the tests of the squeezing effects share: one run, and rows set upright.
#pragma once

#include "support/effect_run.h"

#include <string>

namespace pixano::test {

/// The picture after the effect.
inline Surface After(const Surface& picture, void (*effect)(Work&))
{
    return EffectRun(picture).Apply(effect).work.Picture1;
}

/// A picture of one row as a column.
inline Letters Upright(const std::string& row)
{
    Letters rows;
    for (const char letter : row)
        rows.emplace_back(1, letter);
    return rows;
}

}  // namespace pixano::test
