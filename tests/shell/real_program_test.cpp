// What the real program, started by a test, answers before it shows a window.
#include "shell/options.h"
#include "support/temporary_folder.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace pixano::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// How the real program ended, and what it wrote.
struct Ended {
    int status = -1;
    std::string out;
    std::string err;
};

/// Starts it on that platform of the toolkit, or on the usual one, without a screen.
Ended Started(const QStringList& arguments, const QString& platform = {})
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(name);
    if (!platform.isEmpty()) environment.insert("QT_QPA_PLATFORM", platform);
    program.setProcessEnvironment(environment);
    program.start(PIXANO, arguments);
    if (!program.waitForFinished()) return {};
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
}

TEST(RealProgram, AnswersWithoutAScreen)
{
    const Ended help = Started({"--aiuto"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.out, UsageText);
    const Ended version = Started({"--versione"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "Pixano 2.3\n");
}

TEST(RealProgram, TellsThatItCannotAnswer)
{
    QProcess program;
    program.start("sh", {"-c", "\"$0\" --aiuto >/dev/full", PIXANO});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_THAT(program.readAllStandardError().toStdString(),
                HasSubstr("standard output: non c'è più spazio"));
}

/// What is said of "--sbagliata".
const std::string WrongOption =
    std::string("Pixano: opzione sconosciuta: «--sbagliata».\n\n") + UsageText;

TEST(RealProgram, TellsItsUsageAndEndsWithTwoAtAnUnknownOption)
{
    const Ended ended = Started({"--sbagliata"}, "offscreen");
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_THAT(ended.err, EndsWith(WrongOption));
}

TEST(RealProgram, SaysThatThereIsNoScreen)
{
    for (const QStringList& arguments : {QStringList(), QStringList{"a.bmp"}}) {
        const Ended ended = Started(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_THAT(ended.err, HasSubstr("non c'è uno schermo"));
        EXPECT_THAT(ended.err, HasSubstr("pixano-batch"));
    }
    const Ended misunderstood = Started({"--sbagliata"});
    EXPECT_EQ(misunderstood.status, 2);
    EXPECT_EQ(misunderstood.err, WrongOption);
}

TEST(RealProgram, LeavesThePlatformToTheToolkitWhereOneIsNamed)
{
    const Ended ended = Started({"-platform", "offscreen", "--sbagliata"});
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.err, EndsWith(WrongOption));
}

TEST(RealProgram, OpensNoWindowForTwoPictures)
{
    const Ended ended = Started({"a.bmp", "b.bmp"}, "offscreen");
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.err, HasSubstr("«b.bmp» è di troppo.\n\nUso: "));
}

TEST(RealProgram, OutlivesAWriteBeyondALimitOnTheSizeOfFiles)
{
    const TemporaryFolder folder;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_DATA_HOME", QString::fromStdString(folder / "dati"));
    program.setProcessEnvironment(environment);
    program.setChildProcessModifier([] {
        const rlimit nothing{0, 0};
        setrlimit(RLIMIT_FSIZE, &nothing);
        // Another test may have it ignored, which a program hands on to what it starts.
        std::signal(SIGXFSZ, SIG_DFL);
    });
    // From the menu it brings its strengths to the data folder before it asks for anything.
    program.start(PIXANO, {"--da-menu"});
    EXPECT_FALSE(program.waitForFinished(1500)) << program.exitCode();
    program.kill();
    program.waitForFinished();
}

}  // namespace
}  // namespace pixano::test
