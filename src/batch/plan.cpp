#include "batch/plan.h"

#include "pictures/picture_files.h"

#include <filesystem>
#include <map>
#include <set>

#include <sys/stat.h>

namespace pixano::batch {
namespace {

namespace fs = std::filesystem;

std::string OutputOf(const CommandLine& line, const std::string& input)
{
    if (line.output) return *line.output;
    return (fs::path(*line.folder) / fs::path(input).stem()).string() + ".bmp";
}

void RefuseUnknownFormat(const std::string& output)
{
    if (output == StandardStream || !fs::path(output).has_extension()) return;
    try {
        FormatOf(output);
    } catch (const PictureError& error) {
        throw WrongCommandLine(error.what());
    }
}

void RefuseSharedResults(const std::vector<PlannedPicture>& pictures)
{
    std::map<std::string, std::string> inputOf;
    for (const auto& [input, output] : pictures) {
        const auto [other, isNew] = inputOf.emplace(output, input);
        if (!isNew)
            throw WrongCommandLine("Il risultato di «" + input + "» e quello di «" + other->second +
                                   "» avrebbero lo stesso nome: «" + output + "»");
    }
}

/// What tells whether two names mean the same file, whatever the names are.
using FileIdentity = std::pair<dev_t, ino_t>;

std::optional<FileIdentity> IdentityOf(const std::string& name)
{
    struct stat found = {};
    if (name == StandardStream || ::stat(name.c_str(), &found) != 0) return std::nullopt;
    return FileIdentity(found.st_dev, found.st_ino);
}

void RefuseOverwrittenInputs(const std::vector<PlannedPicture>& pictures)
{
    std::set<FileIdentity> read;
    for (const auto& picture : pictures)
        if (const auto identity = IdentityOf(picture.input)) read.insert(*identity);
    for (const auto& picture : pictures) {
        const auto identity = IdentityOf(picture.output);
        if (identity && read.contains(*identity))
            throw WrongCommandLine(
                "Il risultato prenderebbe il posto di un'immagine da leggere: «" + picture.output +
                "»");
    }
}

/// "Rotazione +90°" is rotazione-piu-90.
std::string FileNameOf(const Effect& effect)
{
    std::string name;
    for (const char c : effect.name) {
        const bool first = name.empty() || name.back() == '-';
        if (c >= 'A' && c <= 'Z') name += static_cast<char>(c - 'A' + 'a');
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) name += c;
        if (c == '+' && first) name += "piu-";
        if (c == '-' && first) name += "meno-";
        if (c == ' ') name += '-';
    }
    return name;
}

}  // namespace

PlannedSheet PlanSheet(const CommandLine& line)
{
    const std::string& input = line.inputs.front();
    const fs::path folder = *line.folder;
    const auto in = [&folder](const std::string& name) { return (folder / name).string(); };
    PlannedSheet sheet{{}, in("originale.jpg"), in("index.html")};
    for (const Effect& effect : Effects)
        sheet.effects.push_back({input, in(FileNameOf(effect) + ".jpg")});
    auto all = sheet.effects;
    all.push_back({input, sheet.original});
    all.push_back({input, sheet.page});
    RefuseOverwrittenInputs(all);
    return sheet;
}

std::vector<PlannedPicture> PlanPictures(const CommandLine& line)
{
    std::vector<PlannedPicture> pictures;
    pictures.reserve(line.inputs.size());
    for (const std::string& input : line.inputs)
        pictures.push_back({input, OutputOf(line, input)});
    if (line.output) RefuseUnknownFormat(*line.output);
    RefuseSharedResults(pictures);
    RefuseOverwrittenInputs(pictures);
    return pictures;
}

}  // namespace pixano::batch
