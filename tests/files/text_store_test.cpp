// The pixel working file on disk: what it holds, how often it is read, when it goes.
#include "files/text_file.h"
#include "support/faults.h"

#include <cstdint>
#include <limits>
#include <string>

namespace pixano::test {
namespace {

namespace fs = std::filesystem;

TEST_F(TextFile, HoldsOneNumberALine)
{
    Write({16777215, 255, 16711680, 0, -1});
    EXPECT_EQ(BytesOf(path), "16777215\r\n255\r\n16711680\r\n0\r\n-1\r\n");
}

TEST_F(TextFile, HoldsEveryValueOfThirtyTwoBits)
{
    Write({7, 10, 99, 100, 12345678, 99999999, 100000000, 2147483647, -10, -16777216,
           std::numeric_limits<Colour>::min()});
    EXPECT_EQ(BytesOf(path), "7\r\n10\r\n99\r\n100\r\n12345678\r\n99999999\r\n100000000\r\n"
                             "2147483647\r\n-10\r\n-16777216\r\n-2147483648\r\n");
    for (const Colour value : {7, 10, 99, 100, 12345678, 99999999, 100000000, 2147483647, -10,
                               -16777216, std::numeric_limits<Colour>::min()})
        EXPECT_EQ(file.Input(), value);
}

TEST_F(TextFile, MayHoldNothing)
{
    Write({});
    EXPECT_TRUE(fs::exists(path));
    EXPECT_EQ(BytesOf(path), "");
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, ReplacesAnOldFile)
{
    WriteBytes(path, "a much longer old text\r\n");
    Write({1});
    EXPECT_EQ(BytesOf(path), "1\r\n");
}

TEST_F(TextFile, TakesOneValueFromALineWhereverTheBufferEnds)
{
    constexpr int Lines = 56000;
    std::string text;
    for (int line = 0; line < Lines; ++line)
        text += "\"7.4000000000000\"      \r\n";
    WriteBytes(path, text);
    for (int line = 0; line < Lines; ++line)
        ASSERT_EQ(file.Input(), 7) << line;
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, IsReadFromItsStartAgainAfterItWasClosed)
{
    Write({5, 6});
    EXPECT_EQ(file.Input(), 5);
    file.Close();
    EXPECT_EQ(file.Input(), 5);
    EXPECT_EQ(file.Input(), 6);
}

TEST_F(TextFile, IsGoneAfterKillEvenHalfReadOrHalfWritten)
{
    Write({5, 6});
    file.Input();
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
    file.OpenForOutput();
    file.Write(1);
    file.Kill();
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(TextFile, IsKilledOnlyIfItWasMade)
{
    WriteBytes(path, "of somebody else");
    file.Kill();
    EXPECT_EQ(BytesOf(path), "of somebody else");
    Write({1});
    file.Kill();
    WriteBytes(path, "of somebody else");
    file.Kill();
    EXPECT_EQ(BytesOf(path), "of somebody else");
}

TEST_F(TextFile, CannotBeKilledWhenItHasGoneMeanwhile)
{
    Write({1});
    fs::remove(path);
    EXPECT_EQ(FaultIn([&] { file.Kill(); }), FaultKind::FileNotFound);
}

TEST_F(TextFile, StaysAfterAFaultUntilItIsReplaced)
{
    Write({1});
    file.Input();
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
    EXPECT_TRUE(fs::exists(path));
    Write({2});
    EXPECT_EQ(file.Input(), 2);
}

TEST_F(TextFile, ComesBackWithMoreThanAMillionValues)
{
    std::uint32_t state = 1;
    const auto next = [&state] {
        state = state * 1664525 + 1013904223;
        // All lengths of lines from one digit to ten, some of them negative.
        return static_cast<Colour>(state) >> (state >> 8) % 32;
    };
    file.OpenForOutput();
    for (int i = 0; i < 1100000; ++i)
        file.Write(next());
    file.Close();
    state = 1;
    for (int i = 0; i < 1100000; ++i)
        ASSERT_EQ(file.Input(), next()) << i;
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
}

TEST_F(TextFile, MayBeLeftAnywhereAndBegunAgain)
{
    file.OpenForOutput();
    for (int i = 0; i < 200000; ++i)
        file.Write(i);
    file.Close();
    for (int turn = 0; turn < 100; ++turn) {
        for (int i = 0; i < turn * 1000 + 1; ++i)
            ASSERT_EQ(file.Input(), i);
        file.Close();
    }
    EXPECT_EQ(file.Input(), 0);
    file.Kill();
    Write({3});
    EXPECT_EQ(file.Input(), 3);
}

}  // namespace
}  // namespace pixano::test
