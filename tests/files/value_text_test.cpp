// What counts as a value when the pixel working file is read.
#include "files/value_reading.h"
#include "files/value_text.h"

#include <string>
#include <vector>

namespace pixano::test {
namespace {

TEST_F(ValueText, IsANumberALine)
{
    EXPECT_EQ(ReadAll("12\r\n-7\r\n16777215\r\n"), (Numbers{12, -7, 16777215}));
}

TEST_F(ValueText, EndsAtAnyLineEndAndAtTheEndOfTheFile)
{
    EXPECT_EQ(ReadAll("1\n2\r3\r\n4"), (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(ReadAll("5\r"), Numbers{5});
    EXPECT_TRUE(ReadAll("").empty());
}

TEST_F(ValueText, EndsAtACommaToo)
{
    EXPECT_EQ(ReadAll("1,2,-3\r\n4\r\n"), (Numbers{1, 2, -3, 4}));
    EXPECT_EQ(ReadAll("1,,2\r\n"), (Numbers{1, 0, 2}));
}

TEST_F(ValueText, MayStandBetweenBlanks)
{
    EXPECT_EQ(ReadAll("  12 \r\n\t13\t, 14\r\n"), (Numbers{12, 13, 14}));
}

TEST_F(ValueText, MayStandInQuotes)
{
    EXPECT_EQ(ReadAll("\"7\"\r\n\"8\",9\r\n"), (Numbers{7, 8, 9}));
}

TEST_F(ValueText, OfAnEmptyLineIsZero)
{
    EXPECT_EQ(ReadAll("\r\n5\r\n\r\n\r\n6\r\n"), (Numbers{0, 5, 0, 0, 6}));
    EXPECT_EQ(ReadAll("\"\"\r\n"), Numbers{0});
}

TEST_F(ValueText, IsRoundedHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(ReadAll("1.5\r\n2.5\r\n-0.5\r\n2.6\r\n1e3\r\n"), (Numbers{2, 2, 0, 3, 1000}));
}

TEST_F(ValueText, ReachesBothEndsOfThirtyTwoBits)
{
    EXPECT_EQ(ReadAll("2147483647\r\n-2147483648\r\n0000000000123\r\n"),
              (Numbers{2147483647, -2147483647 - 1, 123}));
}

TEST_F(ValueText, IsNoWord)
{
    for (const char* const text :
         {"abc", "12x", "x12", "--1", "1 2", "-", "\"a b\"", "\"1,5\"", "1.2.3", "inf", "-nan"}) {
        EXPECT_EQ(Read(std::string("1\r\n2\r\n") + text + "\r\n3\r\n"), (Numbers{1, 2})) << text;
        EXPECT_EQ(fault, FaultKind::TypeMismatch) << text;
    }
}

TEST_F(ValueText, IsNoNumberBeyondThirtyTwoBits)
{
    for (const char* const text : {"99999999999", "2147483648", "-2147483649", "1e20", "1e400"}) {
        EXPECT_EQ(Read(std::string("1\r\n") + text + "\r\n"), Numbers{1}) << text;
        EXPECT_EQ(fault, FaultKind::Overflow) << text;
    }
}

TEST_F(ValueText, CutShortGivesWhatIsThereAndThenFails)
{
    EXPECT_EQ(ReadAll("100\r\n200\r\n30"), (Numbers{100, 200, 30}));
    EXPECT_EQ(ReadAll("100\r\n200\r\n"), (Numbers{100, 200}));
}

TEST_F(ValueText, OfEndlessLengthIsNoNumber)
{
    EXPECT_TRUE(Read(std::string(1000000, 'x')).empty());
    EXPECT_EQ(fault, FaultKind::TypeMismatch);
}

TEST_F(ValueText, IsTheSameByLinesAndOneByOne)
{
    std::string plain;
    std::string blanks;
    Numbers expected;
    for (const Colour value : {0, 9, 10, 255, 9999, 65535, 1234567, 16777215, 99999999, -1, -255}) {
        plain += std::to_string(value) + "\r\n";
        blanks.append(" ").append(std::to_string(value)).append(" \r\n");
        expected.push_back(value);
    }
    EXPECT_EQ(ReadAll(plain), expected);
    EXPECT_EQ(ReadAll(blanks), expected);
}

TEST(FormatLines, WritesEachLengthOfNumber)
{
    Colour value = 1;
    for (int digits = 1; digits <= 10; ++digits) {
        const std::vector<Colour> values{value, -value, value - 1};
        std::string text(values.size() * LongestLine, ' ');
        char* const end = FormatLines(values, text.data());
        std::string expected;
        for (const Colour each : values)
            expected.append(std::to_string(each)).append("\r\n");
        EXPECT_EQ(std::string(text.data(), end), expected);
        if (digits < 10) value *= 10;
    }
}

}  // namespace
}  // namespace pixano::test
