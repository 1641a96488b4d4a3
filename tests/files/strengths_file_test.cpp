#include "files/strengths_file.h"

#include "canvas/fault.h"
#include "support/hindrances.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

using Entries = std::filesystem::directory_iterator;

class StrengthFile : public testing::Test {
  protected:
    Strengths Read(const std::string& content)
    {
        WriteBytes(path, content);
        Strengths valori{};
        LeggiValori(path, valori);
        return valori;
    }

    FaultKind FaultOf(const std::string& content)
    {
        try {
            Read(content);
        } catch (const Fault& fault) {
            return fault.Kind();
        }
        ADD_FAILURE() << "no fault";
        return {};
    }

    TemporaryFolder folder;
    std::string path = folder / "valori.tip";
};

TEST_F(StrengthFile, HoldsFiveNumbersOneALine)
{
    EXPECT_EQ(Read("1000\r\n5000\r\n2.5\r\n0\r\n-7\r\n"), (Strengths{0, 1000, 5000, 2.5, 0, -7}));
}

TEST_F(StrengthFile, MayLackTheLastLineEnd)
{
    EXPECT_EQ(Read("1\n2\n3\n4\n5"), (Strengths{0, 1, 2, 3, 4, 5}));
}

TEST_F(StrengthFile, ReadsTheNumberThatATextBeginsWith)
{
    EXPECT_EQ(Read("12abc\r\nabc\r\n\r\n.5x\r\n+3\r\n"), (Strengths{0, 12, 0, 0, 0.5, 3}));
    EXPECT_EQ(Read("1.5.5\r\ninf\r\nnan\r\n-\r\n1e3\r\n"), (Strengths{0, 1.5, 0, 0, 0, 1000}));
}

TEST_F(StrengthFile, IgnoresWhatFollowsTheFifthItem)
{
    EXPECT_EQ(Read("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n"), (Strengths{0, 1, 2, 3, 4, 5}));
}

TEST_F(StrengthFile, TooShortIsAFault)
{
    EXPECT_EQ(FaultOf("1\r\n2\r\n3\r\n4\r\n"), FaultKind::InputPastEnd);
    EXPECT_EQ(FaultOf(""), FaultKind::InputPastEnd);
}

TEST_F(StrengthFile, ChangesNothingWhereItIsAFault)
{
    for (const char* const content :
         {"", "1\r\n2\r\n3\r\n4\r\n", "1\r\n2\r\n1e999\r\n4\r\n5\r\n"}) {
        WriteBytes(path, content);
        Strengths valori{0, 9, 9, 9, 9, 9};
        EXPECT_THROW(LeggiValori(path, valori), Fault);
        EXPECT_EQ(valori, (Strengths{0, 9, 9, 9, 9, 9})) << content;
    }
}

TEST_F(StrengthFile, MissingOrNoFileIsAFault)
{
    Strengths valori{};
    try {
        LeggiValori(path, valori);
        ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.Kind(), FaultKind::FileNotFound);
        EXPECT_NE(std::string(fault.what()).find(path), std::string::npos);
    }
    EXPECT_THROW(LeggiValori(folder / "", valori), Fault);
}

TEST_F(StrengthFile, ANumberTooLargeIsAFault)
{
    EXPECT_EQ(FaultOf("1e999\r\n2\r\n3\r\n4\r\n5\r\n"), FaultKind::Overflow);
}

TEST_F(StrengthFile, IsWrittenAsPlainDigitsWithCrLf)
{
    SalvaValori(path, {123, 1000, 0.25, -3, 1000000, 5000});
    EXPECT_EQ(BytesOf(path), "1000\r\n0.25\r\n-3\r\n1000000\r\n5000\r\n");
}

TEST_F(StrengthFile, ReplacesAnOldOneAndLeavesNothingBeside)
{
    WriteBytes(path, "old, and longer than the new one will ever be: 0123456789 0123456789");
    SalvaValori(path, {0, 1, 2, 3, 4, 5});
    EXPECT_EQ(BytesOf(path), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    EXPECT_EQ(std::distance(Entries(folder / ""), Entries()), 1);
}

TEST_F(StrengthFile, LeavesWhatIsBesideItAlone)
{
    WriteBytes(path + "~", "the user's own");
    SalvaValori(path, {0, 1, 2, 3, 4, 5});
    EXPECT_EQ(BytesOf(path + "~"), "the user's own");
}

TEST_F(StrengthFile, StaysAsItWasWhereTheDiskIsFull)
{
    WriteBytes(path, "1\r\n2\r\n3\r\n4\r\n5\r\n");
    {
        const FileSizeLimit disk(4);
        EXPECT_THROW(SalvaValori(path, {0, 6, 7, 8, 9, 10}), Fault);
    }
    EXPECT_EQ(BytesOf(path), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    EXPECT_EQ(std::distance(Entries(folder / ""), Entries()), 1);
}

TEST_F(StrengthFile, IsReadThroughALinkAndNeverWrittenThroughOne)
{
    const std::string target = folder / "packaged.tip";
    WriteBytes(target, "1\r\n2\r\n3\r\n4\r\n5\r\n");
    std::filesystem::create_symlink(target, path);
    Strengths valori{};
    LeggiValori(path, valori);
    EXPECT_EQ(valori, (Strengths{0, 1, 2, 3, 4, 5}));
    SalvaValori(path, {0, 6, 7, 8, 9, 10});
    EXPECT_EQ(BytesOf(target), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::symlink_status(path)));
    EXPECT_EQ(BytesOf(path), "6\r\n7\r\n8\r\n9\r\n10\r\n");
}

TEST_F(StrengthFile, ThatCannotBeWrittenIsAFault)
{
    std::filesystem::create_directory(path);
    EXPECT_THROW(SalvaValori(path, {}), Fault);
    EXPECT_EQ(std::distance(Entries(folder / ""), Entries()), 1);
    EXPECT_THROW(SalvaValori(folder / "missing/valori.tip", {}), Fault);
}

}  // namespace
}  // namespace pixano::test
