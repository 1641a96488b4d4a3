// The tool on a terminal, which "script" stands for: one line that is written over again and again.
#include "batch/tool_run.h"

#include <chrono>

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// The tool on a terminal, with work that takes long enough to be told of.
class OnTerminal : public Tool {
  protected:
    OnTerminal()
    {
        for (const char* const name : {"a.bmp", "b.bmp"})
            SaveBitmap(Surface(1400, 1400, 0x123456), File(name));
        Draw("small.bmp", {"abc"});
        std::filesystem::create_directory(File("fatte"));
    }
    /// What appears on the terminal; `effects` times the same effect on each picture.
    std::string Shown(const std::string& arguments, int effects = 30) const
    {
        std::string line = "TERM=xterm '" + program + "'";
        for (int i = 0; i < effects; ++i)
            line += " -e Vetro=2500";
        const Ran ran =
            RunProgram({"script", "-qec", line + " " + arguments, "/dev/null"}, Folder());
        EXPECT_EQ(ran.status, 0) << ran.out;
        return ran.out;
    }
};

// The progress line counts the pictures that are done, where there are several.
TEST_F(OnTerminal, CountsThePicturesThatAreDone)
{
    const std::string two = Shown("-j 1 -d fatte a.bmp b.bmp");
    const std::size_t first = two.find("fatte/a.bmp: Vetro");
    ASSERT_NE(first, std::string::npos);
    EXPECT_THAT(two.substr(0, first), AllOf(HasSubstr("\r\033[K0 immagini su 2   Vetro  ("),
                                            Not(HasSubstr("1 immagine"))));
    EXPECT_THAT(two.substr(first), AllOf(HasSubstr("\r\033[K1 immagine su 2   Vetro  ("),
                                         Not(HasSubstr("0 immagini"))));
    // Done is what has ended, even where its line waits for the one before.
    EXPECT_THAT(Shown("-j 2 -d fatte a.bmp small.bmp"),
                HasSubstr("\r\033[K1 immagine su 2   Vetro  ("));
}

TEST_F(OnTerminal, ShowsThePercentTenTimesASecondAtMost)
{
    const auto start = std::chrono::steady_clock::now();
    const std::string shown = Shown("-o c.bmp a.bmp");
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_THAT(shown, AllOf(HasSubstr("\r\033[KVetro  ("), Not(HasSubstr("immagini"))));
    int lines = 0;
    for (std::size_t at = shown.find("%)"); at != std::string::npos; at = shown.find("%)", at + 1))
        ++lines;
    EXPECT_LE(lines, seconds.count() * 10 + 1);
    // Whole percents of one effect, not the bar's quarters.
    EXPECT_THAT(shown, Not(testing::ContainsRegex("\\((10[1-9]|1[1-9][0-9]|[2-9][0-9][0-9])%")));
}

TEST_F(OnTerminal, ShowsNoProgressOfWhatIsOverAtOnce)
{
    // A busy machine may take its time now and then.
    std::string shown;
    for (int i = 0; i < 20 && shown != "c.bmp: Vetro   3x1\r\n"; ++i)
        shown = Shown("-o c.bmp small.bmp", 1);
    EXPECT_EQ(shown, "c.bmp: Vetro   3x1\r\n");
}

TEST_F(OnTerminal, ShowsNoProgressInAFile)
{
    std::string line = "TERM=xterm \"$0\" -o c.bmp a.bmp";
    for (int i = 0; i < 30; ++i)
        line += " -e Vetro=2500";
    EXPECT_EQ(RunProgram({"sh", "-c", line, program}, Folder()).err, "");
}

}  // namespace
}  // namespace pixano::batch::test
