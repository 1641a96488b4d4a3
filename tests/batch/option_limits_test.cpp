// Each option at its bounds, given twice, and what is said of it; each guess at its limit.
#include "batch/command_line.h"

#include <gtest/gtest.h>

namespace pixano::batch::test {
namespace {

using Arguments = std::vector<std::string_view>;

/// What is said of the command line; empty when it can be followed.
std::string ComplaintOf(const Arguments& arguments)
{
    try {
        ParseCommandLine(arguments);
    } catch (const WrongCommandLine& wrong) {
        return wrong.what();
    }
    return {};
}

struct Named {
    std::string_view shortName;  ///< as messages call it
    std::string_view longName;
    std::string_view value;
};

constexpr Named OnceOnly[] = {{"-o", "--uscita", "b"},   {"-d", "--cartella", "f"},
                              {"-j", "--insieme", "2"},  {"--entro", "--entro", "9"},
                              {"--seme", "--seme", "7"}, {"--qualita", "--qualita", "80"}};

TEST(OptionLimits, AnOptionWithOneValueIsGivenOnce)
{
    for (const Named& option : OnceOnly) {
        Arguments line{option.shortName, option.value, "a"};
        if (option.shortName != "-o" && option.shortName != "-d")
            line.insert(line.end(), {"-o", "b"});
        EXPECT_EQ(ComplaintOf(line), "");
        line.insert(line.end(), {option.longName, option.value});
        EXPECT_EQ(ComplaintOf(line),
                  "L'opzione " + std::string(option.shortName) + " è data due volte");
    }
}

TEST(OptionLimits, AValueThatIsMissingIsToldByTheOptionAsItWasWritten)
{
    for (const std::string_view option : {"-o", "--uscita", "-d", "--cart", "-e", "--effetto", "-j",
                                          "--insieme", "--entro", "--seme", "--qualita"})
        EXPECT_EQ(ComplaintOf({"a", option}), "Manca il valore dopo " + std::string(option));
}

TEST(OptionLimits, ANameIsNotEmpty)
{
    EXPECT_EQ(ComplaintOf({"-o", "", "a"}), "Dopo -o il nome non può essere vuoto");
    EXPECT_EQ(ComplaintOf({"-d", "", "a"}), "Dopo -d il nome non può essere vuoto");
    EXPECT_EQ(ComplaintOf({"--cartella=", "a"}), "Dopo -d il nome non può essere vuoto");
    EXPECT_EQ(ComplaintOf({"-o", "b", ""}), "Dopo le opzioni il nome non può essere vuoto");
}

struct Number {
    std::string_view option;
    std::string_view value;
    const char* refused;  ///< what is said behind the option; nullptr when it is taken
};

constexpr Number Numbers[] = {
    {"-j", "1", nullptr},
    {"-j", "4294967295", nullptr},
    {"-j", "0", "da 1 in su, non «0»"},
    {"-j", "4294967296", "da 1 in su, non «4294967296»"},
    {"-j", "2x", "da 1 in su, non «2x»"},
    {"--entro", "1", nullptr},
    {"--entro", "2147483647", nullptr},
    {"--entro", "0", "da 1 in su, non «0»"},
    {"--entro", "2147483648", "da 1 in su, non «2147483648»"},
    {"--seme", "0", nullptr},
    {"--seme", "18446744073709551615", nullptr},
    {"--seme", "-1", "da 0 in su, non «-1»"},
    {"--seme", "18446744073709551616", "da 0 in su, non «18446744073709551616»"},
    {"--qualita", "1", nullptr},
    {"--qualita", "100", nullptr},
    {"--qualita", "0", "da 1 a 100, non «0»"},
    {"--qualita", "101", "da 1 a 100, non «101»"},
    {"--qualita", "90 ", "da 1 a 100, non «90 »"},
};

TEST(OptionLimits, ANumberIsWholeAndWithinItsBounds)
{
    for (const auto& [option, value, refused] : Numbers)
        EXPECT_EQ(ComplaintOf({option, value, "-o", "b", "a"}),
                  refused == nullptr
                      ? ""
                      : "Dopo " + std::string(option) + " serve un numero intero " + refused);
}

TEST(OptionLimits, AnOptionIsToldAsItWasWritten)
{
    EXPECT_EQ(ComplaintOf({"--forse=3", "a"}), "Opzione sconosciuta: «--forse=3»");
    EXPECT_EQ(ComplaintOf({"-x7", "a"}), "Opzione sconosciuta: «-x7»");
    EXPECT_EQ(ComplaintOf({"--=7", "a"}), "Opzione sconosciuta: «--=7»");
    EXPECT_EQ(ComplaintOf({"--elenco=7"}), "L'opzione --elenco non prende un valore");
    EXPECT_EQ(ComplaintOf({"-h7"}), "L'opzione --aiuto non prende un valore");
    EXPECT_EQ(ComplaintOf({"--e", "a"}), "Opzione ambigua: «--e» può essere --effetto o --entro");
}

TEST(OptionLimits, StandardInputHasNoNameForAFolderWhereverItStands)
{
    for (const Arguments& inputs : {Arguments{"-"}, {"-", "a"}, {"a", "-"}, {"a", "-", "b"}}) {
        Arguments line{"-d", "f"};
        line.insert(line.end(), inputs.begin(), inputs.end());
        EXPECT_EQ(ComplaintOf(line), "Lo standard input non ha un nome: con «-» serve -o, non -d");
    }
}

TEST(OptionLimits, ASheetGoesIntoAFolderAndNowhereElse)
{
    EXPECT_EQ(ComplaintOf({"--tutti", "-d", "f", "a"}), "");
    for (const Arguments& line : {Arguments{"--tutti", "a"},
                                  {"--tutti", "-o", "b", "a"},
                                  {"--tutti", "-o", "b", "-d", "f", "a"}})
        EXPECT_EQ(ComplaintOf(line), "--tutti scrive in una cartella: serve -d, non -o");
}

struct Guess {
    const char* written;
    const char* meant;  ///< nullptr: too far from every name
};

// As many letters may be wrong as a third of the name has, and one more; capitals count for
// nothing.
constexpr Guess Guesses[] = {{"Vet", "Vetro"},
                             {"Ve", nullptr},
                             {"Vxxro", "Vetro"},
                             {"Vxxxo", nullptr},
                             {"Specc", "Specchio"},
                             {"Spec", nullptr},
                             {"SPECC", "Specchio"},
                             {"specchioxxx", "Specchio"},
                             {"specchioxxxx", nullptr},
                             {"Coloraz", "Colorazione"},
                             {"Colora", nullptr},
                             {"Colorazione1234", "Colorazione"},
                             {"Colorazione12345", nullptr}};

TEST(OptionLimits, ANameIsGuessedUpToAThirdOfItsLetters)
{
    for (const auto& [written, meant] : Guesses) {
        std::string expected = "Effetto sconosciuto: «" + std::string(written) + "»";
        if (meant != nullptr) expected += " (forse «" + std::string(meant) + "»?)";
        EXPECT_EQ(ComplaintOf({"-e", written, "-o", "b", "a"}),
                  expected + "; --elenco dà tutti i nomi");
    }
}

TEST(OptionLimits, AStrengthIsToldAsItWasWritten)
{
    EXPECT_EQ(ComplaintOf({"-e", "Specchio=3", "-o", "b", "a"}),
              "L'effetto «Specchio» non ha una forza");
    EXPECT_EQ(ComplaintOf({"-e", "Vetro=1,5", "-o", "b", "a"}),
              "La forza di «Vetro» deve essere un numero (con il punto decimale), non «1,5»");
    EXPECT_EQ(ComplaintOf({"-e", "Vetro=1=2", "-o", "b", "a"}),
              "La forza di «Vetro» deve essere un numero (con il punto decimale), non «1=2»");
}

}  // namespace
}  // namespace pixano::batch::test
