// An effect of a test's own, to look at the program from inside the effect's frame.
#pragma once

#include "effects/catalogue.h"

#include <functional>

namespace pixano::test {

/// What the spy does in place of painting. Set it before the spy is run.
inline std::function<void(Work&)>& SpyAction()
{
    static std::function<void(Work&)> action;
    return action;
}

/// "Spia": runs the action. Fill in what the frame is to do differently.
inline Effect Spy()
{
    return {.name = "Spia", .run = [](Work& w) { SpyAction()(w); }, .family = Family::Geometry};
}

}  // namespace pixano::test
