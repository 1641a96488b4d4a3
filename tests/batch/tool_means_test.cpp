// What the tool does with the means that it has: threads, its standard streams.
#include "batch/tool_run.h"

#include "support/effect_run.h"

#include <thread>

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class Means : public Tool {};

TEST_F(Means, WorksWithAsManyThreadsAsAskedFor)
{
    std::filesystem::create_directory(File("fatte"));
    std::string work;
    for (int i = 0; i < 12; ++i)
        work += " -e Vetro=2500";
    for (int i = 0; i < 6; ++i) {
        SaveBitmap(Surface(900, 900, 0x123456), File(std::to_string(i) + ".bmp"));
        work += " " + std::to_string(i) + ".bmp";
    }
    const unsigned all = std::min(6U, std::max(1U, std::thread::hardware_concurrency()));
    for (const auto& [option, threads] :
         {std::pair("-j 1", 1U), {"-j 3", 3U}, {"-j 50", 6U}, {"", all}}) {
        // Looks on until it has ended; a process that has is a zombie.
        const Ran ran = Shell("\"$0\" -d fatte " + std::string(option) + work +
                              R"( >/dev/null & most=0
            while now=$(awk '/^State/ {s = $2} /^Threads/ {print s == "Z" ? 0 : $2}' /proc/$!/status) &&
                  [ "$now" -gt 0 ]; do
                [ "$now" -gt "$most" ] && most=$now
            done
            wait $! && echo $most)");
        EXPECT_EQ(ran.out, std::to_string(threads) + "\n") << option << ran.err;
    }
}

// A file of that name is meant by a path only.
TEST_F(Means, TakesADashForTheStreamsThoughThereIsAFileOfThatName)
{
    Draw("a.bmp", {"abc"});
    Draw("other.bmp", {"xyz"});
    std::filesystem::rename(File("other.bmp"), File("-"));
    const std::string before = Bytes("-");
    // To standard output, from standard input, and both at once.
    EXPECT_EQ(Run({"-o", "-", "a.bmp"}).out, Bytes("a.bmp"));
    EXPECT_EQ(Run({"-o", "b.bmp", "-"}, File("a.bmp")).out, "b.bmp: -   3x1\n");
    EXPECT_EQ(Result("b.bmp"), (Letters{"abc"}));
    const Ran both = Run({"-o", "-", "-"}, File("a.bmp"));
    EXPECT_EQ(both.out, Bytes("a.bmp"));
    EXPECT_EQ(both.status, 0) << both.err;
    EXPECT_EQ(Bytes("-"), before);
    EXPECT_EQ(Run({"-o", "c.bmp", "./-"}).out, "c.bmp: -   3x1\n");
    EXPECT_EQ(Result("c.bmp"), (Letters{"xyz"}));
    EXPECT_EQ(Run({"-o", "./-", "a.bmp"}).status, 0);
    EXPECT_EQ(Result("-"), (Letters{"abc"}));
}

TEST_F(Means, NamesTheStreamThatFails)
{
    Draw("a.bmp", {"ab"});
    EXPECT_EQ(Shell("\"$0\" -o b.bmp - </dev/null").err,
              "pixano-batch: Impossibile leggere «standard input»: il file è vuoto\n");
    EXPECT_EQ(
        Shell("\"$0\" -o - a.bmp >/dev/full").err,
        "pixano-batch: Impossibile scrivere «standard output»: non c'è più spazio sul disco\n");
    EXPECT_EQ(Shell("\"$0\" -o b.bmp - <&-").status, 1);
}

TEST_F(Means, WritesNoPictureToATerminal)
{
    Draw("a.bmp", {"ab"});
    const Ran ran =
        RunProgram({"script", "-qec", "'" + program + "' -o - a.bmp", "/dev/null"}, Folder());
    EXPECT_EQ(ran.status, 2);
    EXPECT_THAT(ran.out, HasSubstr("Un'immagine non si scrive su un terminale"));
    EXPECT_THAT(ran.out, Not(HasSubstr("BM")));
}

}  // namespace
}  // namespace pixano::batch::test
