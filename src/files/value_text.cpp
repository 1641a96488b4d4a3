#include "files/value_text.h"

#include "canvas/fault.h"
#include "canvas/rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

namespace pixano {
namespace {

using FourDigits = std::array<char, 4>;

constexpr FourDigits DigitsOf(std::uint32_t n)
{
    return {static_cast<char>('0' + n / 1000), static_cast<char>('0' + n / 100 % 10),
            static_cast<char>('0' + n / 10 % 10), static_cast<char>('0' + n % 10)};
}

/// The last four digits of a number and its line end, as long as a word.
using Tail = std::array<char, 8>;
constexpr std::size_t TailLength = 6;

constexpr std::array<Tail, 10000> AllTails()
{
    std::array<Tail, 10000> table{};
    for (std::uint32_t n = 0; n < table.size(); ++n) {
        const FourDigits digits = DigitsOf(n);
        table[n] = {digits[0], digits[1], digits[2], digits[3], '\r', '\n'};
    }
    return table;
}
constexpr auto Tails = AllTails();

/// The digits before the last four, without leading zeros.
struct Head {
    FourDigits digits;
    std::uint32_t count;
};

/// As many as the largest colour has.
constexpr std::size_t HeadCount = White / Tails.size() + 1;

constexpr std::array<Head, HeadCount> AllHeads()
{
    std::array<Head, HeadCount> table{};
    for (std::uint32_t n = 0; n < table.size(); ++n) {
        const FourDigits digits = DigitsOf(n);
        std::uint32_t zeros = 0;
        while (zeros < digits.size() && digits[zeros] == '0')
            ++zeros;
        for (std::uint32_t i = zeros; i < digits.size(); ++i)
            table[n].digits[i - zeros] = digits[i];
        table[n].count = static_cast<std::uint32_t>(digits.size()) - zeros;
    }
    return table;
}
constexpr auto Heads = AllHeads();

constexpr std::uint64_t EachByte(std::uint8_t byte)
{
    return 0x0101010101010101U * byte;
}

/// The number that eight digits make, one a byte, the first one the most significant.
std::uint32_t NumberOf(std::uint64_t digits)
{
    digits = digits * 10 + (digits >> 8);
    constexpr std::uint64_t Mask = 0x000000FF000000FFU;
    constexpr std::uint64_t Upper = 100 + (1000000ULL << 32);
    constexpr std::uint64_t Lower = 1 + (10000ULL << 32);
    return static_cast<std::uint32_t>(((digits & Mask) * Upper + ((digits >> 16) & Mask) * Lower) >>
                                      32);
}

/// Takes the line at `at` if it is `Count` digits and CR LF.
template <std::size_t Count>
bool TakeDigits(const char*& at, Colour*& out)
{
    if (std::memcmp(at + Count, "\r\n", 2) != 0) return false;
    std::uint64_t digits = 0;
    std::memcpy(&digits, at, sizeof digits);
    // What follows the digits is pushed out; zeros come in before them.
    digits = (digits ^ EachByte('0')) << (8 * (sizeof digits - Count));
    // A byte is a digit when neither it nor it plus 6 reaches the upper half.
    if ((((digits + EachByte(6)) | digits) & EachByte(0xF0)) != 0) return false;
    *out++ = static_cast<Colour>(NumberOf(digits));
    at += Count + 2;
    return true;
}

/// Takes the line at `at` if it is one to eight digits and CR LF. Most colours have seven or eight,
/// and neighbours as many as each other: the processor guesses which, and starts with the next line
/// before this one is read.
bool TakeNumber(const char*& at, Colour*& out)
{
    return TakeDigits<8>(at, out) || TakeDigits<7>(at, out) || TakeDigits<6>(at, out) ||
           TakeDigits<5>(at, out) || TakeDigits<4>(at, out) || TakeDigits<3>(at, out) ||
           TakeDigits<2>(at, out) || TakeDigits<1>(at, out);
}

/// The same with a minus in front.
bool TakeNegative(const char*& at, Colour*& out)
{
    constexpr std::ptrdiff_t LongestNegative = 9;
    if (*at != '-') return false;
    const auto [end, error] = std::from_chars(at, at + LongestNegative, *out);
    if (error != std::errc() || std::memcmp(end, "\r\n", 2) != 0) return false;
    ++out;
    at = end + 2;
    return true;
}

/// Writes words where there are fewer characters: the next one comes over the rest.
char* AppendLine(Colour value, char* text)
{
    const auto number = static_cast<std::uint32_t>(value);
    const std::uint32_t head = number / Tails.size();
    if (head - 1 >= Heads.size() - 1) [[unlikely]] {  // four digits or less, or no colour
        text = std::to_chars(text, text + LongestLine, value).ptr;
        return std::copy_n("\r\n", 2, text);
    }
    std::memcpy(text, &Heads[head].digits, sizeof(FourDigits));
    text += Heads[head].count;
    std::memcpy(text, &Tails[number % Tails.size()], sizeof(Tail));
    return text + TailLength;
}

std::string InFile(std::string_view name)
{
    return "Nel file «" + std::string(name) + "» ";
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

/// Drops the separator that ends an item: a comma or one line end.
void DropSeparator(std::string_view& text)
{
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
    if (text.size() < LongestLine) return values.data();
    const char* at = text.data();
    const char* const safeEnd = at + text.size() - LongestLine;
    Colour* out = values.data();
    const Colour* const outEnd = out + values.size();
    while (at <= safeEnd && out != outEnd && (TakeNumber(at, out) || TakeNegative(at, out))) {
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
    const std::string_view item = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + (quoted ? 1 : 0));
    while (!rest.empty() && IsBlank(rest.front()))
        rest.remove_prefix(1);
    // More of the item, more blanks, or the other half of the line end may still come.
    constexpr std::size_t LongestSeparator = 2;
    if (!atEnd && rest.size() < LongestSeparator) return std::nullopt;
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
    if (error == std::errc::result_out_of_range)
        throw Fault(FaultKind::Overflow, InFile(name) + "c'è un numero troppo grande");
    // "inf" and "nan" are words here, not numbers.
    if (error != std::errc() || stop != end || !std::isfinite(number))

        throw Fault(FaultKind::TypeMismatch, InFile(name) + "c'è un testo al posto di un numero");
    return CLng(number);
}

}  // namespace pixano
