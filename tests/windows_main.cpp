// The windows' tests run on a platform without a screen, unless they are told that there is one for
// them.
#include "shell/application.h"
#include "support/desk.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class ForgettingTheEnd : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { pixano::test::ForgetEarlierEnd(); }
};

}  // namespace

int main(int argc, char* argv[])
{
    // Tests become another user now and then, who must get into the folders that they make.
    umask(022);
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("PIXANO_ON_SCREEN") &&
        !qgetenv("QT_QPA_PLATFORM").startsWith("offscreen"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(false);
    // The file dialog keeps how its columns were.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QApplication application(argc, argv);
    pixano::PrepareApplication(application);
    testing::UnitTest::GetInstance()->listeners().Append(new ForgettingTheEnd);
    return RUN_ALL_TESTS();
}
