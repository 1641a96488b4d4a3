// The windows' tests run on a platform without a screen, in folders of their own.
#include "shell/start.h"

#include <QApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(false);
    QApplication application(argc, argv);
    pixano::PrepareApplication(application);
    return RUN_ALL_TESTS();
}
