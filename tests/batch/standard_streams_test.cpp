// The tool at its standard streams: a picture read from one and written to one, and what it tells
// where they take no more.
#include "batch/tool_run.h"

namespace pixano::batch::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Tool, SaysThatItCannotTellTheCaption)
{
    Draw("a.bmp", {"ab"});
    const Ran ran = RunProgram({"sh", "-c", "\"$0\" -o b.bmp a.bmp >/dev/full", program}, Folder());
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("standard output: non c'è più spazio"));
}

TEST_F(Tool, TellsThatItCannotTellAboutItself)
{
    for (const auto* const option : {"--aiuto", "--versione", "--elenco"}) {
        const Ran ran = RunProgram(
            {"sh", "-c", "\"$0\" " + std::string(option) + " >/dev/full", program}, Folder());
        EXPECT_EQ(ran.status, 1) << option;
        EXPECT_EQ(ran.err, "pixano-batch: Impossibile scrivere sullo standard output: "
                           "non c'è più spazio sul disco\n");
    }
}

TEST_F(Tool, SendsNoEscapeSequencesToATerminalThatCallsItselfDumb)
{
    SaveBitmap(Surface(1400, 1400, 0x123456), File("a.bmp"));
    // "script" gives it a terminal; so many effects take longer than the progress line waits for.
    std::string command = "'" + program + "' -o b.bmp a.bmp";
    for (int i = 0; i < 30; ++i)
        command += " -e Vetro=2500";
    for (const auto* const kind : {"dumb", "", "xterm"}) {
        const Ran ran = RunProgram(
            {"env", "TERM=" + std::string(kind), "script", "-qec", command, "/dev/null"}, Folder());
        EXPECT_EQ(ran.status, 0);
        EXPECT_EQ(ran.out.find('\033') != std::string::npos, kind == std::string("xterm")) << kind;
    }
}

TEST_F(Tool, ReadsStandardInputAndWritesStandardOutput)
{
    Draw("a.bmp", {"abc", "def"});
    ASSERT_EQ(Run({"-e", "Specchio", "-o", "b.bmp", "a.bmp"}).status, 0);
    const Ran ran = Run({"-e", "Specchio", "-o", "-", "-"}, File("a.bmp"));
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, Bytes("b.bmp"));
    EXPECT_EQ(ran.err, "-: Specchio   3x2\n");
    EXPECT_EQ(Run({"-o", "c.bmp", "-"}, File("a.bmp")).out, "c.bmp: -   3x2\n");
    EXPECT_EQ(Run({"-o", "d.bmp", "-"}).status, 1);
    EXPECT_FALSE(Exists("d.bmp"));
}

TEST_F(Tool, TakesOfStandardInputWhatThePictureNeeds)
{
    Draw("a.bmp", {"abc", "def"});
    const auto piped = [this](const std::string& from) {
        return RunProgram({"sh", "-c", from + " | timeout 60 \"$0\" -o b.bmp -", program},
                          Folder());
    };
    EXPECT_EQ(piped("cat a.bmp /dev/zero").out, "b.bmp: -   3x2\n");
    EXPECT_EQ(Result("b.bmp"), (Letters{"abc", "def"}));
    const Ran refused = piped("cat /dev/zero");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "pixano-batch: Impossibile leggere «standard input»: non è un'immagine "
                           "BMP, JPEG o GIF\n");
    // A file is read from where it stands, not from its start.
    WriteBytes(File("c"), "xyz" + Bytes("a.bmp"));
    const std::string command = "{ dd bs=3 count=1 of=/dev/null 2>&1; \"$0\" -o d.bmp -; } <c";
    EXPECT_EQ(RunProgram({"sh", "-c", command, program}, Folder()).status, 0);
    EXPECT_EQ(Result("d.bmp"), (Letters{"abc", "def"}));
}

TEST_F(Tool, FailsWhenStandardOutputTakesNoMore)
{
    Draw("a.bmp", {"ab"});
    const Ran ran = RunProgram({"sh", "-c", "\"$0\" -o - a.bmp >/dev/full", program}, Folder());
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, StartsWith("pixano-batch: "));
}

TEST_F(Tool, FailsWhenStandardOutputIsAFileOverTheSizeLimit)
{
    Draw("a.bmp", Letters(100, std::string(100, 'a')));
    const Ran ran =
        RunProgram({"sh", "-c", "ulimit -f 8; exec \"$0\" -o - a.bmp > b.bmp", program}, Folder());
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("il file supera la dimensione consentita"));
}

TEST_F(Tool, ReadsNothingBehindTheEndOfStandardInput)
{
    Draw("a.bmp", {"abc", "def"});
    WriteBytes(File("cut.bmp"), Bytes("a.bmp").substr(0, 54 + 12));
    const Ran ran = Run({"-o", "b.bmp", "-"}, File("cut.bmp"));
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, HasSubstr("attenzione"));
    EXPECT_EQ(Result("b.bmp"), (Letters{"...", "def"}));
}

}  // namespace
}  // namespace pixano::batch::test
