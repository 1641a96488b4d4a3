#include "batch/command_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace pixano::batch {
namespace {

std::string Quoted(std::string_view text)
{
    return "«" + std::string(text) + "»";
}

/// A whole number of at least `least` and at most `most`, decimal digits only.
template <typename Number>
Number WholeNumber(std::string_view option, std::string_view text, Number least,
                   Number most = std::numeric_limits<Number>::max())
{
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < least || number > most) {
        const std::string above = most == std::numeric_limits<Number>::max()
                                      ? " in su, non "
                                      : " a " + std::to_string(most) + ", non ";
        throw WrongCommandLine("Dopo " + std::string(option) + " serve un numero intero da " +
                               std::to_string(least) + above + Quoted(text));
    }
    return number;
}

template <typename Value>
void SetOnce(std::optional<Value>& place, std::string_view option, Value value)
{
    if (place) throw WrongCommandLine("L'opzione " + std::string(option) + " è data due volte");
    place = std::move(value);
}

std::string Named(std::string_view option, std::string_view name)
{
    if (name.empty())
        throw WrongCommandLine("Dopo " + std::string(option) + " il nome non può essere vuoto");
    return std::string(name);
}

struct Option {
    std::string_view shortName;
    std::string_view longName;
    bool takesValue;
    void (*take)(CommandLine&, std::string_view value);
};

constexpr auto Options = std::to_array<Option>({
    {"-e", "--effetto", true,
     [](CommandLine& line, std::string_view value) { line.steps.push_back(ParseStep(value)); }},
    {"-o", "--uscita", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.output, "-o", Named("-o", value));
     }},
    {"-d", "--cartella", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.folder, "-d", Named("-d", value));
     }},
    {"-j", "--insieme", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.jobs, "-j", WholeNumber<unsigned>("-j", value, 1));
     }},
    {"", "--entro", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.within, "--entro", WholeNumber<int>("--entro", value, 1));
     }},
    {"", "--tutti", false,
     [](CommandLine& line, std::string_view) {
         // What the tool tells about itself goes before.
         if (line.task == Task::Pictures) line.task = Task::Sheet;
     }},
    {"", "--seme", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.seed, "--seme", WholeNumber<std::uint64_t>("--seme", value, 0));
     }},
    {"", "--qualita", true,
     [](CommandLine& line, std::string_view value) {
         SetOnce(line.quality, "--qualita", WholeNumber<int>("--qualita", value, 1, 100));
     }},
    {"", "--silenzioso", false, [](CommandLine& line, std::string_view) { line.quiet = true; }},
    {"-h", "--aiuto", false, [](CommandLine& line, std::string_view) { line.task = Task::Help; }},
    {"", "--help", false, [](CommandLine& line, std::string_view) { line.task = Task::Help; }},
    {"", "--versione", false,
     [](CommandLine& line, std::string_view) { line.task = Task::Version; }},
    {"", "--version", false,
     [](CommandLine& line, std::string_view) { line.task = Task::Version; }},
    {"", "--elenco", false, [](CommandLine& line, std::string_view) { line.task = Task::List; }},
});

/// The option that `argument` names, and the value written in the same argument, if any:
/// `--seme=7`, `-j4`.
struct Recognised {
    const Option* option = nullptr;
    std::optional<std::string_view> value;
};

/// The option of that long name, or the only one whose name begins so ("--version", which begins as
/// "--versione" does, means the same). The end of the table when there is none.
const Option* FindLong(std::string_view name)
{
    const auto* const exact = std::ranges::find(Options, name, &Option::longName);
    if (exact != Options.end()) return exact;
    const Option* found = Options.end();
    for (const Option& option : Options) {
        if (name.size() <= 2 || !option.longName.starts_with(name)) continue;
        const bool same = found != Options.end() && found->longName.starts_with(option.longName);
        if (found != Options.end() && !same)
            throw WrongCommandLine("Opzione ambigua: " + Quoted(name) + " può essere " +
                                   std::string(found->longName) + " o " +
                                   std::string(option.longName));
        found = &option;
    }
    return found;
}

Recognised Recognise(std::string_view argument)
{
    const bool isLong = argument.starts_with("--");
    const std::size_t nameLength = isLong ? std::min(argument.find('='), argument.size()) : 2;
    const auto name = argument.substr(0, nameLength);
    const auto* const option =
        isLong ? FindLong(name) : std::ranges::find(Options, name, &Option::shortName);
    if (option == Options.end()) throw WrongCommandLine("Opzione sconosciuta: " + Quoted(argument));
    if (nameLength == argument.size()) return {option, std::nullopt};
    return {option, argument.substr(nameLength + (isLong ? 1 : 0))};
}

/// Takes the option at the front of `arguments`, with its value.
void TakeOption(CommandLine& line, std::span<const std::string_view>& arguments)
{
    auto [option, value] = Recognise(arguments.front());
    const std::string_view written = arguments.front();
    arguments = arguments.subspan(1);
    if (!option->takesValue && value)
        throw WrongCommandLine("L'opzione " + std::string(option->longName) +
                               " non prende un valore");
    if (option->takesValue && !value) {
        if (arguments.empty())
            throw WrongCommandLine("Manca il valore dopo " + std::string(written));
        value = arguments.front();
        arguments = arguments.subspan(1);
    }
    option->take(line, value.value_or(std::string_view()));
}

void CheckSheet(const CommandLine& line)
{
    if (line.inputs.empty()) throw WrongCommandLine("Manca l'immagine da leggere");
    if (line.inputs.size() > 1)
        throw WrongCommandLine("--tutti prova una sola immagine alla volta");
    if (line.inputs.front() == StandardStream)
        throw WrongCommandLine("--tutti ha bisogno di un file: «-» non ha un nome da ripetere");
    if (!line.steps.empty())
        throw WrongCommandLine("--tutti prova da sé ogni effetto: non si può usare con -e");
    if (line.output || !line.folder)
        throw WrongCommandLine("--tutti scrive in una cartella: serve -d, non -o");
}

void CheckPictures(const CommandLine& line)
{
    if (line.inputs.empty()) throw WrongCommandLine("Manca l'immagine da leggere");
    if (line.output && line.folder)
        throw WrongCommandLine("-o e -d non possono stare insieme: o un file, o una cartella");
    if (!line.output && !line.folder)
        throw WrongCommandLine("Manca -o (il file da scrivere) o -d (la cartella)");
    if (line.output && line.inputs.size() > 1)
        throw WrongCommandLine("Con più immagini serve -d: -o dà il nome a una sola");
    if (line.folder && std::ranges::find(line.inputs, StandardStream) != line.inputs.end())
        throw WrongCommandLine("Lo standard input non ha un nome: con «-» serve -o, non -d");
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::string_view> arguments)
{
    CommandLine line;
    bool optionsEnded = false;
    while (!arguments.empty()) {
        const std::string_view argument = arguments.front();
        if (!optionsEnded && argument.starts_with('-') && argument != StandardStream &&
            argument != "--") {
            TakeOption(line, arguments);
            continue;
        }
        arguments = arguments.subspan(1);
        if (!optionsEnded && argument == "--")
            optionsEnded = true;
        else
            line.inputs.push_back(Named("le opzioni", argument));
    }
    if (line.task == Task::Pictures) CheckPictures(line);
    if (line.task == Task::Sheet) CheckSheet(line);
    return line;
}

}  // namespace pixano::batch
