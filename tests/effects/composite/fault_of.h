// How an effect on a picture fails.
#pragma once

#include "canvas/fault.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {

/// The run-time error that the effect ends in; a test without one fails.
inline FaultKind FaultOf(EffectRun& run, void (*effect)(Work&))
{
    try {
        run.Apply(effect);
    } catch (const Fault& fault) {
        return fault.Kind();
    }
    ADD_FAILURE() << "no fault";
    return FaultKind::Overflow;
}

}  // namespace pixano::test
