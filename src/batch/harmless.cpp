#include "batch/harmless.h"

#include <algorithm>
#include <bit>

namespace pixano::batch {
namespace {

bool Continues(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// How many bytes the character at the front takes; 1 where they are no UTF-8.
std::size_t LengthOfFirst(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    // As many as the ones that it begins with; a byte below &HC0 is alone.
    const auto length = static_cast<std::size_t>(std::clamp(std::countl_one(lead), 1, 4));
    for (std::size_t i = 1; i < length; ++i)
        if (i >= text.size() || !Continues(text[i])) return 1;
    return length;
}

bool IsControl(std::string_view character)
{
    const auto last = static_cast<unsigned char>(character.back());
    if (character.size() == 1) return last < 0x20 || (last >= 0x7F && last < 0xA0);
    return character.size() == 2 && character.front() == '\xC2' && last < 0xA0;
}

}  // namespace

std::string Harmless(std::string_view text)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string harmless;
    for (std::size_t length = 0; !text.empty(); text.remove_prefix(length)) {
        length = LengthOfFirst(text);
        const std::string_view character = text.substr(0, length);
        if (!IsControl(character)) {
            harmless += character;
            continue;
        }
        for (const char byte : character) {
            const auto value = static_cast<unsigned char>(byte);
            harmless.append("\\x").append(1, Digits[value >> 4]).append(1, Digits[value & 15]);
        }
    }
    return harmless;
}

}  // namespace pixano::batch
