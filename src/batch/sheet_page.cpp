#include "batch/sheet_page.h"

#include "batch/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>

namespace pixano::batch {
namespace {

constexpr const char* Beginning = R"(<!DOCTYPE html>
<html lang="it">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
:root { color-scheme: light dark; }
body { font: 16px/1.5 system-ui, sans-serif; max-width: 76rem; margin: 2rem auto; padding: 0 1rem; }
h2 { border-bottom: 2px solid #ffc44d; padding-bottom: .25rem; margin-top: 2.5rem; }
.effetti { display: grid; grid-template-columns: repeat(auto-fill, minmax(240px, 1fr)); gap: 1.75rem 1.25rem; }
figure { margin: 0; }
img { display: block; max-width: 100%; height: auto; border-radius: 4px; }
figcaption b { display: block; margin-top: .5rem; }
code { display: block; font-size: .75rem; overflow-wrap: anywhere; opacity: .75; user-select: all; }
</style>
)";

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

/// One word for a shell, whatever is in it.
std::string Quoted(const std::string& text)
{
    const auto plain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view("./_-").find(c) != std::string_view::npos;
    };
    if (!text.empty() && std::ranges::all_of(text, plain)) return text;
    std::string quoted = "'";
    for (const char c : text)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string NumberText(double number)
{
    std::array<char, 32> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

std::string StepText(const Step& step)
{
    std::string text(step.effect->name);
    if (step.strength) text += "=" + NumberText(*step.strength);
    return text;
}

std::string Image(const SmallPicture& shown, std::string_view name)
{
    return R"(<img src=")" + Escaped(shown.file) + R"(" alt=")" + Escaped(name) + R"(" width=")" +
           std::to_string(shown.width) + R"(" height=")" + std::to_string(shown.height) +
           R"(" loading="lazy">)";
}

std::string Figure(const SheetContents& contents, const SheetEntry& entry)
{
    std::string text = "<figure>" + Image(entry.shown, entry.step.effect->name) +
                       "<figcaption><b>" + Escaped(entry.step.effect->name) + "</b>";
    if (entry.step.strength) text += "forza " + NumberText(*entry.step.strength);
    return text + "<code>" + Escaped(RepeatingCommand(contents, entry)) +
           "</code></figcaption></figure>\n";
}

std::string FamilySection(const SheetContents& contents, Family family)
{
    std::string figures;
    for (const SheetEntry& entry : contents.entries)
        if (entry.step.effect->family == family && !entry.shown.file.empty())
            figures += Figure(contents, entry);
    if (figures.empty()) return {};
    return "<h2>" + std::string(FamilyName(family)) + "</h2>\n<div class=\"effetti\">\n" + figures +
           "</div>\n";
}

std::string Refusals(const SheetContents& contents)
{
    std::string items;
    for (const SheetEntry& entry : contents.entries)
        if (!entry.refusal.empty()) items += "<li>" + Escaped(entry.refusal) + ".</li>\n";
    if (items.empty()) return {};
    // No side beyond this, and every effect has room.
    constexpr int Enough = 1400;
    std::string advice;
    if (std::max(contents.width, contents.height) > Enough)
        advice = "<p>Un'immagine troppo grande si riduce con <b>--entro " + std::to_string(Enough) +
                 "</b>.</p>\n";
    return "<h2>Effetti che questa misura non consente</h2>\n<ul>\n" + items + "</ul>\n" + advice;
}

}  // namespace

std::string RepeatingCommand(const SheetContents& contents, const SheetEntry& entry)
{
    std::string command = "pixano-batch";
    if (contents.within) command += " --entro " + std::to_string(*contents.within);
    command += " --seme " + std::to_string(contents.seed) + " -e " + Quoted(StepText(entry.step));
    command += " -o " + std::filesystem::path(entry.shown.file).stem().string() + ".bmp ";
    if (contents.input.starts_with('-')) command += "-- ";
    return command + Quoted(contents.input);
}

std::string SheetPage(const SheetContents& contents)
{
    const std::string name = Escaped(std::filesystem::path(contents.input).filename().string());
    std::string page = Beginning;
    page += "<title>Gli effetti di Pixano su " + name + "</title>\n</head>\n<body>\n";
    page += "<h1>Gli effetti di Pixano su " + name + "</h1>\n";
    page += "<p>Un riquadro per ogni effetto, sulla stessa immagine di " +
            std::to_string(contents.width) + " x " + std::to_string(contents.height) +
            " pixel; sotto, il comando che rifà l'immagine in grande.</p>\n";
    page += "<figure>" + Image(contents.original, "L'immagine di partenza") +
            "<figcaption><b>L'immagine di partenza</b></figcaption></figure>\n";
    for (const Family family : {Family::Geometry, Family::ColourAndArt, Family::Composite})
        page += FamilySection(contents, family);
    return page + Refusals(contents) + "</body>\n</html>\n";
}

}  // namespace pixano::batch
