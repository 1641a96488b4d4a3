#include "batch/step.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

namespace pixano::batch {
namespace {

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// How many letters must be put in, taken out or changed to make one text of the other.
std::size_t Distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t changed = diagonal + (Lower(from[i]) == Lower(to[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

std::string UnknownEffect(std::string_view name)
{
    std::string text = "Effetto sconosciuto: «" + std::string(name) + "»";
    const auto nearest = std::ranges::min(
        Effects, {}, [name](const Effect& effect) { return Distance(name, effect.name); });
    if (Distance(name, nearest.name) <= nearest.name.size() / 3 + 1)
        text += " (forse «" + std::string(nearest.name) + "»?)";
    return text + "; --elenco dà tutti i nomi";
}

double ParseStrength(std::string_view name, std::string_view text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || !std::isfinite(number))
        throw WrongCommandLine("La forza di «" + std::string(name) +
                               "» deve essere un numero (con il punto decimale), non «" +
                               std::string(text) + "»");
    return number;
}

}  // namespace

Step ParseStep(std::string_view text)
{
    const std::size_t equals = text.find('=');
    const std::string_view name = text.substr(0, equals);
    const Effect* const effect = FindEffect(name);
    if (effect == nullptr) throw WrongCommandLine(UnknownEffect(name));
    if (equals == std::string_view::npos) return {effect, std::nullopt};
    if (effect->selector == 0)
        throw WrongCommandLine("L'effetto «" + std::string(name) + "» non ha una forza");
    return {effect, ParseStrength(name, text.substr(equals + 1))};
}

}  // namespace pixano::batch
