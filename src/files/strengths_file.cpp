#include "files/strengths_file.h"

#include "files/own_file.h"
#include "files/refusal.h"
#include "files/value_text.h"

#include <charconv>

namespace pixano {
namespace {

/// `Val`: the number that the text begins with, 0 if none.
double Val(std::string_view text, const std::string& path)
{
    if (text.starts_with('+')) text.remove_prefix(1);
    // Only digits make a number: "inf" and "nan" are words.
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (text.find_first_of("0123456789.", first) != first) return 0;
    double number = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
    if (parsed.ec == std::errc::result_out_of_range)
        throw Fault(FaultKind::Overflow, "Nel file «" + path + "» c'è un numero troppo grande");
    return parsed.ec == std::errc() ? number : 0;
}

std::string LineOf(double value)
{
    std::array<char, 512> digits{};  // the largest double has 309 digits before the point
    char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed)
            .ptr;
    return std::string(digits.data(), end) + "\r\n";
}

}  // namespace

void LeggiValori(const std::string& path, Strengths& valori)
{
    const std::string text =
        TellRefusal("leggere", path, [&] { return ReadOwnFile(path, Links::Followed); });
    std::string_view unread = text;
    Strengths read{};
    for (std::size_t i = 1; i < read.size(); ++i) {
        const auto item = TakeItem(unread, true);
        if (!item)
            throw Fault(FaultKind::InputPastEnd,
                        "Il file «" + path + "» finisce prima dei cinque valori");
        read[i] = Val(*item, path);
    }
    valori = read;
}

void SalvaValori(const std::string& path, const Strengths& valori)
{
    std::string text;
    for (std::size_t i = 1; i < valori.size(); ++i)
        text += LineOf(valori[i]);
    TellRefusal("salvare", path, [&] { ReplaceOwnFile(path, text); });
}

}  // namespace pixano
