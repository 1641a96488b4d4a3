// Where the tool takes the strength of an effect from.
#include "batch/tool_run.h"

namespace pixano::batch::test {
namespace {

using testing::HasSubstr;

/// The tool in the folder of its pictures, with a "valori.tip" of the test's own beside it.
class StrengthChoice : public Tool {
  protected:
    StrengthChoice()
    {
        std::filesystem::copy(PIXANO_BATCH, File("pixano-batch"));
        program = File("pixano-batch");
        SaveBitmap(Drawn({"abcdefgh", "ijklmnop", "qrstuvwx", "ABCDEFGH", "IJKLMNOP"}),
                   File("a.bmp"));
    }

    std::string ResultOf(const std::string& effect)
    {
        const Ran ran = Run({"-e", effect, "-o", "b.bmp", "a.bmp"});
        EXPECT_EQ(ran.status, 0) << ran.err;
        return Bytes("b.bmp");
    }
};

TEST_F(StrengthChoice, TakesItFromTheFileBesideTheProgram)
{
    WriteBytes(File("valori.tip"), "1\r\n2\r\n3000\r\n4\r\n5\r\n");
    const std::string third = ResultOf("Vetro");
    EXPECT_EQ(third, ResultOf("Vetro=3000"));
    EXPECT_NE(third, ResultOf("Vetro=9000"));
}

TEST_F(StrengthChoice, NeedsTheFileOnlyWhenNoStrengthIsGiven)
{
    EXPECT_EQ(Run({"-e", "Vetro=3000", "-e", "Specchio", "-o", "b.bmp", "a.bmp"}).status, 0);
    const Ran ran = Run({"-e", "Vetro=3000", "-e", "Vetro", "-o", "c.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err,
                HasSubstr("Impossibile leggere «" + File("valori.tip") + "»: il file non esiste"));
    EXPECT_FALSE(Exists("c.bmp"));
}

TEST_F(StrengthChoice, FailsOnAFileThatIsTooShort)
{
    WriteBytes(File("valori.tip"), "1\r\n2\r\n3\r\n4\r\n");
    const Ran ran = Run({"-e", "Vetro", "-o", "c.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("«" + File("valori.tip") + "» finisce prima dei cinque valori"));
    EXPECT_FALSE(Exists("c.bmp"));
}

TEST_F(StrengthChoice, TakesAStrengthOutsideTheSliderAsItStands)
{
    EXPECT_NE(ResultOf("Vetro=-500"), ResultOf("Vetro=0"));
    // 12010 makes the divisor of "Vetro" zero.
    const Ran ran = Run({"-e", "Vetro=12010", "-o", "c.bmp", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("a.bmp: Vetro: Divisione per zero"));
}

TEST_F(Tool, IsShippedWithStrengths)
{
    const std::string beside = std::filesystem::path(PIXANO_BATCH).parent_path() / "valori.tip";
    EXPECT_EQ(BytesOf(beside), "1000\r\n5000\r\n5000\r\n5000\r\n5000\r\n");
}

}  // namespace
}  // namespace pixano::batch::test
