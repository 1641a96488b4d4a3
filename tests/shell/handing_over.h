// A second start of the program, from within a test that goes on as the first one.
#pragma once

#include "shell/second_start.h"

#include <QTest>

#include <gtest/gtest.h>

#include <future>

namespace pixano::test {

/// Hands the picture over to whoever has that data folder, while this thread handles its events;
/// whether it was taken.
inline bool HandOverMeanwhile(const QString& dataFolder, const QString& picture)
{
    auto taken = std::async(std::launch::async, [&] { return HandOver(dataFolder, picture); });
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return taken.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    return taken.get();
}

}  // namespace pixano::test
