// Windows that a command shows again.
#include "windows/window_operation.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(ShownAgain, AWindowIsAsLargeAsBeforeItWasMinimised)
{
    for (const Qt::WindowStates state : {Qt::WindowNoState, Qt::WindowMaximized}) {
        QWidget window;
        window.setWindowState(state);
        window.show();
        window.setWindowState(state | Qt::WindowMinimized);
        ASSERT_TRUE(window.isMinimized());
        ShowAgain(window);
        EXPECT_EQ(window.windowState() & ~Qt::WindowActive, state);
        EXPECT_TRUE(window.isVisible());
    }
}

}  // namespace
}  // namespace pixano::test
