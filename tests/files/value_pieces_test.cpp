// Long texts, which are read in pieces: no value is changed by where a piece ends.
#include "files/value_reading.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace pixano::test {
namespace {

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

// What looks like a plain line to a quick glance.
TEST_F(ValueText, OfALongTextIsNoNumberWithASignBesideTheDigits)
{
    for (std::size_t length = 1; length <= 8; ++length)
        for (std::size_t place = 0; place < length; ++place)
            for (const char sign : {'/', ':', '?', '@', '\xB5'}) {
                std::string number(length, '5');
                number[place] = sign;
                EXPECT_EQ(Read(number + "\r\n" + ManyLines(100)), Numbers()) << number;
                EXPECT_EQ(fault, FaultKind::TypeMismatch) << number;
            }
}

TEST_F(ValueText, OfALongTextMayEndAtHalfALineEnd)
{
    for (std::size_t length = 1; length <= 8; ++length) {
        const Numbers values = ReadAll(std::string(length, '5') + "\r7\r\n" + ManyLines(100));
        EXPECT_EQ(values.size(), 102U);
        EXPECT_EQ(values.at(1), 7) << length;
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

}  // namespace
}  // namespace pixano::test
