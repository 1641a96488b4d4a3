// Which run-time error something ends in.
#pragma once

#include "canvas/fault.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace pixano::test {

/// The kind of the fault that `action` throws; nothing when it throws none.
template <typename Action>
std::optional<FaultKind> FaultIn(Action&& action)
{
    try {
        std::forward<Action>(action)();
    } catch (const Fault& fault) {
        return fault.Kind();
    }
    return std::nullopt;
}

}  // namespace pixano::test
