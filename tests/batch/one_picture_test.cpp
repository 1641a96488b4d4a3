// The tool on one picture: result, caption line, exit status, and no result when anything fails.
#include "batch/tool_run.h"

namespace pixano::batch::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Tool, WritesTheResultAndTellsItsCaption)
{
    Draw("a.bmp", {"abc", "def"});
    const Ran ran = Run({"-e", "Specchio", "-o", "b.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, "b.bmp: Specchio   3x2\n");
    EXPECT_EQ(ran.err, "");
    EXPECT_EQ(Result("b.bmp"), (Letters{"cba", "fed"}));
    EXPECT_EQ(FileCount(), 2);
}

TEST_F(Tool, RunsTheEffectsInOrder)
{
    Draw("a.bmp", {"abc", "def"});
    // Mirrored: cba, fed. Turned: the rows from the last one, each reversed and one to the right.
    EXPECT_EQ(Run({"-e", "Specchio", "-e", "Capovolgi", "-o", "b.bmp", "a.bmp"}).out,
              "b.bmp: Capovolgi   3x2\n");
    EXPECT_EQ(Result("b.bmp"), (Letters{"~de", "~ab"}));
    // Turned: ~fe, ~cb. Then mirrored.
    EXPECT_EQ(Run({"-e", "Capovolgi", "-e", "Specchio", "-o", "c.bmp", "a.bmp"}).out,
              "c.bmp: Specchio   3x2\n");
    EXPECT_EQ(Result("c.bmp"), (Letters{"ef~", "bc~"}));
}

TEST_F(Tool, WithoutEffectsKeepsThePictureAndTellsItsName)
{
    std::filesystem::create_directory(File("in"));
    Draw("in/a.bmp", {"abc"});
    EXPECT_EQ(Run({"-o", "b.bmp", "in/a.bmp"}).out, "b.bmp: a.bmp   3x1\n");
    EXPECT_EQ(Result("b.bmp"), (Letters{"abc"}));
}

TEST_F(Tool, ReplacesAnOlderResult)
{
    Draw("a.bmp", {"ab"});
    WriteBytes(File("b.bmp"), "older");
    EXPECT_EQ(Run({"-e", "Specchio", "-o", "b.bmp", "a.bmp"}).status, 0);
    EXPECT_EQ(Result("b.bmp"), (Letters{"ba"}));
}

TEST_F(Tool, FailsOnAPictureThatCannotBeRead)
{
    WriteBytes(File("text.bmp"), "this is no picture");
    WriteBytes(File("old.bmp"), "older");
    for (const auto* const name : {"text.bmp", "missing.bmp", "."}) {
        const Ran ran = Run({"-e", "Specchio", "-o", "old.bmp", name});
        EXPECT_EQ(ran.status, 1) << name;
        EXPECT_EQ(ran.out, "");
        EXPECT_THAT(ran.err, StartsWith("pixano-batch: "));
        EXPECT_EQ(Bytes("old.bmp"), "older");
    }
    EXPECT_EQ(Run({"-o", "new.bmp", "text.bmp"}).status, 1);
    EXPECT_FALSE(Exists("new.bmp"));
}

TEST_F(Tool, FailsWhenAnEffectEndsInAFault)
{
    // Column 1501 lies outside the matrix that the turn reads from.
    Draw("a.bmp", {std::string(1501, 'a')});
    const Ran ran = Run({"-e", "Specchio", "-e", "Rotazione -90°", "-o", "b.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("a.bmp: Rotazione -90°: Indice fuori dalla matrice"));
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(Tool, FailsWhenTheResultCannotBeWritten)
{
    Draw("a.bmp", {"ab"});
    const Ran ran = Run({"-o", "missing/b.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("missing/b.bmp"));
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(Tool, FailsWithoutATraceWhenTheDiskIsFull)
{
    Draw("a.bmp", Letters(100, std::string(100, 'a')));
    WriteBytes(File("b.bmp"), "older");
    const Ran ran =
        RunProgram({"sh", "-c", "ulimit -f 8; exec \"$0\" -o b.bmp a.bmp", program}, Folder());
    EXPECT_EQ(ran.status, 1) << ran.err;
    EXPECT_EQ(ran.out, "");
    EXPECT_NE(ran.err, "");
    EXPECT_EQ(Bytes("b.bmp"), "older");
    EXPECT_EQ(FileCount(), 2);
}

TEST_F(Tool, HandsTheQualityOnToJpegResults)
{
    Draw("a.bmp", {"abcdefgh", "hgfedcba"});
    EXPECT_EQ(Run({"--qualita", "5", "-o", "5.jpg", "a.bmp"}).status, 0);
    EXPECT_EQ(Run({"--qualita=95", "-o", "95.jpg", "a.bmp"}).status, 0);
    EXPECT_EQ(Run({"-o", "usual.jpg", "a.bmp"}).status, 0);
    EXPECT_EQ(Bytes("95.jpg"), Bytes("usual.jpg"));
    EXPECT_LT(Bytes("5.jpg").size(), Bytes("usual.jpg").size());
}

TEST_F(Tool, RefusesAWrongCommandBeforeReadingAnything)
{
    const Ran ran = Run({"-e", "Specio", "-o", "b.bmp", "missing.bmp"});
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("forse «Specchio»?"));
    EXPECT_THAT(ran.err, HasSubstr("\nUso: pixano-batch"));
    EXPECT_THAT(ran.err, testing::Not(HasSubstr("missing.bmp")));
    EXPECT_EQ(Run({}).status, 2);
    EXPECT_EQ(Run({"-o", "b.gif", "missing.bmp"}).status, 2);
    EXPECT_EQ(FileCount(), 0);
}

TEST_F(Tool, NeverReplacesThePictureThatItReads)
{
    Draw("a.bmp", {"ab"});
    const std::string before = Bytes("a.bmp");
    EXPECT_EQ(Run({"-e", "Specchio", "-o", "./a.bmp", "a.bmp"}).status, 2);
    EXPECT_EQ(Bytes("a.bmp"), before);
}

TEST_F(Tool, WritesTheFormatThatTheNameAsksFor)
{
    Draw("a.bmp", {"ab"});
    EXPECT_EQ(Run({"-o", "b.png", "a.bmp"}).out, "b.png: a.bmp   2x1\n");
    EXPECT_THAT(Bytes("b.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(Run({"-o", "b.JPG", "a.bmp"}).status, 0);
    EXPECT_THAT(Bytes("b.JPG"), StartsWith("\xFF\xD8\xFF"));
    EXPECT_EQ(Run({"-o", "b", "a.bmp"}).status, 0);
    EXPECT_THAT(Bytes("b"), StartsWith("BM"));
}

TEST_F(Tool, UsesAnIncompletePictureAndSaysSo)
{
    Draw("a.bmp", {"abc", "def"});
    // 54 bytes of headers, then the bottom row of three pixels, padded to 12 bytes.
    WriteBytes(File("cut.bmp"), Bytes("a.bmp").substr(0, 54 + 12));
    const Ran ran = Run({"-e", "Specchio", "-o", "b.bmp", "cut.bmp"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, "b.bmp: Specchio   3x2\n");
    EXPECT_THAT(ran.err, HasSubstr("cut.bmp: attenzione, il file è incompleto o danneggiato"));
    EXPECT_EQ(Result("b.bmp"), (Letters{"...", "fed"}));
}

TEST_F(Tool, TellsNamesWithControlCharactersHarmlessly)
{
    const std::string name = "a\x1B[2J\n\t\x7F\xC2\x9B\x9B\xE8è€\xF0\x9F\x99\x82.bmp";
    const std::string shown = "a\\x1B[2J\\x0A\\x09\\x7F\\xC2\\x9B\\x9B\xE8è€\xF0\x9F\x99\x82.bmp";
    Draw(name, {"ab", "cd"});
    EXPECT_EQ(Run({"-o", "r" + name, name}).out, "r" + shown + ": " + shown + "   2x2\n");
    WriteBytes(File(name), Bytes(name).substr(0, 60));
    EXPECT_THAT(Run({"-o", "b.bmp", name}).err, StartsWith("pixano-batch: " + shown + ": attenz"));
    EXPECT_EQ(Run({"-o", "b.bmp", "no" + name}).err,
              "pixano-batch: Impossibile leggere «no" + shown + "»: il file non esiste\n");
    EXPECT_THAT(Run({"-" + name}).err,
                StartsWith("pixano-batch: Opzione sconosciuta: «-" + shown.substr(0, 1)));
    EXPECT_EQ(Run({"-d", name + "/", name}).err,
              "pixano-batch: La cartella «" + shown + "/» non esiste\n");
    for (const char* const option : {"-e", "-o", "-j"})
        EXPECT_THAT(Run({option, name, "-" + name}).err, testing::Not(HasSubstr("\x1B")));
}

TEST_F(Tool, SaysOnlyWhatMattersWhenSilent)
{
    Draw("a.bmp", {"ab"});
    const Ran done = Run({"--silenzioso", "-o", "b.bmp", "a.bmp"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out + done.err, "");
    EXPECT_NE(Run({"--silenzioso", "-o", "c.bmp", "missing.bmp"}).err, "");
}

}  // namespace
}  // namespace pixano::batch::test
