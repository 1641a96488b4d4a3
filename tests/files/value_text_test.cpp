// What counts as a value when the pixel working file is read.
#include "files/text_store.h"
#include "files/value_text.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace pixano::test {
namespace {

class ValueText : public testing::Test {
  protected:
    /// Reads the text to its first fault; `fault` tells which.
    std::vector<Colour> Read(const std::string& text)
    {
        const auto path = folder / "elab.ser";
        WriteBytes(path, text);
        PixelFile file(TextStore(path));
        std::vector<Colour> values;
        fault = FaultIn([&] {
            for (;;)
                values.push_back(file.Input());
        });
        return values;
    }
    /// Reads a text in which all is well up to its end.
    std::vector<Colour> ReadAll(const std::string& text)
    {
        std::vector<Colour> values = Read(text);
        EXPECT_EQ(fault, FaultKind::InputPastEnd) << text;
        return values;
    }

    TemporaryFolder folder;
    std::optional<FaultKind> fault;
};

using Numbers = std::vector<Colour>;

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
         {"abc", "12x", "x12", "--1", "1 2", "-", "\"a b\"", "1.2.3", "inf", "-nan"}) {
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

// The text is read in pieces of 65536 characters. Lines of ten characters after a first one of
// three to twelve put the border of the pieces at each place of a line, also between CR and LF.
TEST_F(ValueText, MayBeCutAnywhereByTheReading)
{
    for (std::size_t digits = 1; digits <= 10; ++digits) {
        std::string text = std::string(digits, '1') + "\r\n";
        constexpr std::size_t Count = 60000;
        for (std::size_t i = 0; i < Count; ++i)
            text += std::to_string(10000000 + i) + "\r\n";
        const Numbers values = ReadAll(text);
        ASSERT_EQ(values.size(), Count + 1);
        EXPECT_EQ(values[0], std::stoi(std::string(digits, '1')));
        for (std::size_t i = 0; i < Count; ++i)
            ASSERT_EQ(values[i + 1], static_cast<Colour>(10000000 + i));
    }
}

// The same for lines that are no plain whole numbers, too long to be looked at in one piece: blanks
// before the first one push the border through all of a line and of the empty one after it.
TEST_F(ValueText, OfALongLineMayBeCutAnywhereByTheReading)
{
    const std::string lines = "7.4" + std::string(20, '0') + "\r\n\r\n";
    const std::size_t count = 270000 / lines.size();
    for (std::size_t blanks = 0; blanks <= lines.size(); ++blanks) {
        std::string text(blanks, ' ');
        for (std::size_t i = 0; i < count; ++i)
            text += lines;
        const Numbers values = ReadAll(text);
        ASSERT_EQ(values.size(), 2 * count) << blanks;
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_EQ(values[2 * i], 7);
            ASSERT_EQ(values[2 * i + 1], 0);
        }
    }
}

/// More plain lines than fit in all pieces that are read ahead.
std::string ManyLines(std::size_t count = 100000)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += std::to_string(i * 151) + "\r\n";
    return text;
}

Numbers ManyValues(std::size_t count = 100000)
{
    Numbers values;
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(static_cast<Colour>(i * 151));
    return values;
}

// What is no plain line may come when pieces far behind it are read already, or in the last one.
TEST_F(ValueText, IsReadByGeneralRulesFromAnyPlaceOn)
{
    for (const std::size_t before : {1, 5000, 30000, 99999}) {
        const std::string text = ManyLines(before) + "7,8\n\r\n" + ManyLines() + "-5";
        Numbers expected = ManyValues(before);
        expected.insert(expected.end(), {7, 8, 0});
        std::ranges::copy(ManyValues(), std::back_inserter(expected));
        expected.push_back(-5);
        EXPECT_EQ(ReadAll(text), expected);
    }
}

// A quoted text with a line end in it is one item, also where a piece ends with that line end.
TEST_F(ValueText, InQuotesIsNotCutByTheReading)
{
    for (std::size_t digits = 1; digits <= 10; ++digits) {
        std::string text = std::string(digits, '1') + "\r\n";
        while (text.size() < 65520)
            text += "10000000\r\n";
        const std::size_t count = Read(text + "\"12\r\n13\"\r\n" + ManyLines()).size();
        EXPECT_EQ(count, text.size() / 10 + (text.size() % 10 > 2 ? 1 : 0)) << digits;
        EXPECT_EQ(fault, FaultKind::TypeMismatch);
    }
}

TEST_F(ValueText, FailsAtTheSamePlaceInALongText)
{
    for (const char* const text : {"abc", "99999999999", "12x", "- 1"}) {
        EXPECT_EQ(Read(ManyLines() + text + "\r\n" + ManyLines()), ManyValues()) << text;
        EXPECT_TRUE(fault == FaultKind::TypeMismatch || fault == FaultKind::Overflow) << text;
    }
}

TEST_F(ValueText, OfALongTextEndsAtAnyLineEnd)
{
    for (const char* const end : {"\n", "\r", ","}) {
        std::string text;
        for (int i = 0; i < 100000; ++i)
            text += std::to_string(i) + end;
        const Numbers values = ReadAll(text);
        ASSERT_EQ(values.size(), 100000U);
        EXPECT_EQ(values[65432], 65432);
    }
}

TEST_F(ValueText, CutShortInALongTextGivesWhatIsThere)
{
    Numbers expected = ManyValues();
    expected.push_back(0);
    for (const char* const last : {"1", "-1", "123456", "12345678", "12345678\r"}) {
        expected.back() = std::stoi(last);
        EXPECT_EQ(ReadAll(ManyLines() + last), expected) << last;
    }
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
