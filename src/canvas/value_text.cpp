#include "canvas/value_text.h"

#include "canvas/fault.h"
#include "canvas/rounding.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace pixano {
namespace {

static_assert(std::endian::native == std::endian::little, "digits are handled as words");

using FourDigits = std::array<char, 4>;

constexpr auto DigitTable = [] {
    std::array<FourDigits, 10000> table{};
    for (int n = 0; n < 10000; ++n)
        table[static_cast<std::size_t>(n)] = {
            static_cast<char>('0' + n / 1000), static_cast<char>('0' + n / 100 % 10),
            static_cast<char>('0' + n / 10 % 10), static_cast<char>('0' + n % 10)};
    return table;
}();

/// Eight digits with leading zeros, as one word in text order. `value` is below 100,000,000.
std::uint64_t EightDigits(std::uint32_t value)
{
    std::array<FourDigits, 2> digits{DigitTable[value / 10000], DigitTable[value % 10000]};
    return std::bit_cast<std::uint64_t>(digits);
}

constexpr std::uint64_t EachByte(std::uint8_t byte)
{
    return 0x0101010101010101U * byte;
}

/// How many of the eight characters, from the first, are digits.
int LeadingDigits(std::uint64_t eight)
{
    const std::uint64_t distance = eight ^ EachByte('0');
    // A byte is a digit when neither it nor it plus 6 reaches the upper half.
    const std::uint64_t others = ((distance + EachByte(6)) | distance) & EachByte(0xF0);
    return std::countr_zero(others) / 8;
}

/// The number that eight digit characters spell, the first one the most significant.
std::uint32_t Spelled(std::uint64_t eight)
{
    eight -= EachByte('0');
    eight = eight * 10 + (eight >> 8);
    constexpr std::uint64_t Mask = 0x000000FF000000FFU;
    constexpr std::uint64_t Upper = 100 + (1000000ULL << 32);
    constexpr std::uint64_t Lower = 1 + (10000ULL << 32);
    return static_cast<std::uint32_t>(((eight & Mask) * Upper + ((eight >> 16) & Mask) * Lower) >>
                                      32);
}

char* AppendLine(Colour value, char* text)
{
    if (value >= 0 && value < 100000000) {
        const auto digits = EightDigits(static_cast<std::uint32_t>(value));
        const std::uint64_t significant = (digits ^ EachByte('0')) | (std::uint64_t{1} << 56);
        const int zeros = std::countr_zero(significant) / 8;
        const std::uint64_t shifted = digits >> (8 * zeros);
        std::memcpy(text, &shifted, sizeof shifted);
        text += 8 - zeros;
    } else {
        text = std::to_chars(text, text + LongestLine, value).ptr;
    }
    std::memcpy(text, "\r\n", 2);
    return text + 2;
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view WithoutTrailingBlanks(std::string_view item)
{
    while (!item.empty() && IsBlank(item.back()))
        item.remove_suffix(1);
    return item;
}

/// Drops the separator that ends an item: blanks, then a comma or one line end.
void DropSeparator(std::string_view& text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    if (text.starts_with("\r\n"))
        text.remove_prefix(2);
    else if (!text.empty() &&
             std::string_view(",\r\n").find(text.front()) != std::string_view::npos)
        text.remove_prefix(1);
}

}  // namespace

char* FormatLines(std::span<const Colour> values, char* text)
{
    for (const Colour value : values)
        text = AppendLine(value, text);
    return text;
}

Colour* ParseLines(std::string_view& text, std::span<Colour> values)
{
    const char* at = text.data();
    const char* const safeEnd = at + text.size() - (text.size() < LongestLine ? 0 : LongestLine);
    Colour* out = values.data();
    Colour* const outEnd = out + values.size();
    if (text.size() < LongestLine) return out;
    while (at <= safeEnd && out != outEnd) {
        const bool negative = *at == '-';
        const char* const digits = at + (negative ? 1 : 0);
        std::uint64_t eight = 0;
        std::memcpy(&eight, digits, sizeof eight);
        const int count = LeadingDigits(eight);
        if (count == 0 || std::memcmp(digits + count, "\r\n", 2) != 0) break;
        // Push the digits to the word's end; the places before them become zeros.
        const int missing = 8 * (8 - count);
        const std::uint64_t padding = missing == 0 ? 0 : EachByte('0') >> (64 - missing);
        const auto value =
            static_cast<Colour>(Spelled((missing == 0 ? eight : eight << missing) | padding));
        *out++ = negative ? -value : value;
        at = digits + count + 2;
    }
    text.remove_prefix(static_cast<std::size_t>(at - text.data()));
    return out;
}

std::optional<std::string_view> TakeItem(std::string_view& text, bool atEnd)
{
    std::string_view rest = text;
    while (!rest.empty() && IsBlank(rest.front()))
        rest.remove_prefix(1);
    if (rest.empty()) return std::nullopt;
    const bool quoted = rest.front() == '"';
    if (quoted) rest.remove_prefix(1);
    const std::size_t end = rest.find_first_of(quoted ? "\"" : ",\r\n");
    // A line end may still be cut between its CR and its LF.
    constexpr std::size_t Separator = 3;
    if (!atEnd && (end == std::string_view::npos || rest.size() - end < Separator))
        return std::nullopt;
    const std::string_view item = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + (quoted ? 1 : 0));
    DropSeparator(rest);
    text = rest;
    return quoted ? item : WithoutTrailingBlanks(item);
}

Colour ValueOf(std::string_view item, std::string_view name)
{
    if (item.empty()) return 0;
    double number = 0;
    const char* const end = item.data() + item.size();
    const auto [stop, error] = std::from_chars(item.data(), end, number);
    if (error == std::errc::result_out_of_range) throw Fault(FaultKind::Overflow, name);
    // "inf" and "nan" are words here, not numbers.
    if (error != std::errc() || stop != end || !std::isfinite(number))
        throw Fault(FaultKind::TypeMismatch, name);
    return CLng(number);
}

}  // namespace pixano
