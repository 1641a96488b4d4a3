#include "batch/command_line.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

CommandLine Parsed(std::vector<std::string_view> arguments)
{
    return ParseCommandLine(arguments);
}

std::string Complaint(std::vector<std::string_view> arguments)
{
    try {
        ParseCommandLine(arguments);
    } catch (const WrongCommandLine& wrong) {
        return wrong.what();
    }
    return "(none)";
}

TEST(CommandLine, NamesOnePictureAndItsResult)
{
    const CommandLine line = Parsed({"-o", "b.bmp", "a.jpg"});
    EXPECT_EQ(line.task, Task::Pictures);
    EXPECT_EQ(line.output, "b.bmp");
    EXPECT_THAT(line.inputs, ElementsAre("a.jpg"));
    EXPECT_TRUE(line.steps.empty());
    EXPECT_FALSE(line.seed || line.folder || line.jobs || line.quiet);
}

TEST(CommandLine, KeepsTheEffectsInOrder)
{
    const CommandLine line =
        Parsed({"-e", "Specchio", "-o", "b", "-e", "Capovolgi", "a", "-e", "Specchio"});
    ASSERT_EQ(line.steps.size(), 3U);
    EXPECT_EQ(line.steps[0].effect->name, "Specchio");
    EXPECT_EQ(line.steps[1].effect->name, "Capovolgi");
    EXPECT_EQ(line.steps[2].effect->name, "Specchio");
    EXPECT_FALSE(line.steps[0].strength);
}

TEST(CommandLine, TakesManyPicturesIntoAFolder)
{
    const CommandLine line = Parsed({"a", "b", "-d", "folder", "-j", "3", "--seme",
                                     "18446744073709551615", "--silenzioso", "c"});
    EXPECT_THAT(line.inputs, ElementsAre("a", "b", "c"));
    EXPECT_EQ(line.folder, "folder");
    EXPECT_EQ(line.jobs, 3U);
    EXPECT_EQ(line.seed, 18446744073709551615U);
    EXPECT_TRUE(line.quiet);
}

TEST(CommandLine, TakesValuesWrittenInTheSameArgument)
{
    const CommandLine line =
        Parsed({"--seme=7", "-j4", "--cartella=f", "--effetto=Specchio", "-eCapovolgi", "a"});
    EXPECT_EQ(line.seed, 7U);
    EXPECT_EQ(line.jobs, 4U);
    EXPECT_EQ(line.folder, "f");
    ASSERT_EQ(line.steps.size(), 2);
    EXPECT_EQ(line.steps[1].effect->name, "Capovolgi");
}

TEST(CommandLine, TakesEverythingAfterTwoDashesAsPictures)
{
    const CommandLine line = Parsed({"-d", "f", "--", "-e", "--", "--elenco"});
    EXPECT_THAT(line.inputs, ElementsAre("-e", "--", "--elenco"));
}

TEST(CommandLine, TakesADashAsStandardInputAndOutput)
{
    const CommandLine line = Parsed({"-o", "-", "-"});
    EXPECT_EQ(line.output, "-");
    EXPECT_THAT(line.inputs, ElementsAre("-"));
}

TEST(CommandLine, AsksForASheetOfAllEffects)
{
    const CommandLine line = Parsed({"--tutti", "-d", "f", "--entro", "800", "a.jpg"});
    EXPECT_EQ(line.task, Task::Sheet);
    EXPECT_EQ(line.folder, "f");
    EXPECT_EQ(line.within, 800);
    EXPECT_THAT(line.inputs, ElementsAre("a.jpg"));
    EXPECT_EQ(Parsed({"--tutti", "--aiuto"}).task, Task::Help);
    EXPECT_EQ(Parsed({"--aiuto", "--tutti"}).task, Task::Help);
}

TEST(CommandLine, NeedsNoPictureToTellAboutItself)
{
    EXPECT_EQ(Parsed({"--aiuto"}).task, Task::Help);
    EXPECT_EQ(Parsed({"-h"}).task, Task::Help);
    EXPECT_EQ(Parsed({"--versione"}).task, Task::Version);
    EXPECT_EQ(Parsed({"--elenco"}).task, Task::List);
    EXPECT_EQ(Parsed({"--help"}).task, Task::Help);
    EXPECT_EQ(Parsed({"--version"}).task, Task::Version);
}

TEST(CommandLine, TakesTheBeginningOfALongOptionThatIsNoOthers)
{
    EXPECT_EQ(Parsed({"--a"}).task, Task::Help);
    EXPECT_EQ(Parsed({"--vers"}).task, Task::Version);
    EXPECT_EQ(Parsed({"--el"}).task, Task::List);
    const CommandLine line = Parsed(
        {"--sem=7", "--ins", "3", "--eff", "Specchio", "--car", "f", "--qual", "80", "--si", "a"});
    EXPECT_EQ(line.seed, 7U);
    EXPECT_EQ(line.jobs, 3U);
    EXPECT_EQ(line.steps.size(), 1U);
    EXPECT_EQ(line.folder, "f");
    EXPECT_EQ(line.quality, 80);
    EXPECT_TRUE(line.quiet);
    EXPECT_THAT(Complaint({"--s", "a"}),
                AllOf(HasSubstr("«--s»"), HasSubstr("--seme"), HasSubstr("--silenzioso")));
    for (const auto* const text : {"--silenziosoo", "--x", "-elenco=", "--=7"})
        EXPECT_NE(Complaint({text, "-d", "f", "a"}), "(none)") << text;
}

TEST(CommandLine, RefusesWhatItCannotFollow)
{
    EXPECT_THAT(Complaint({}), HasSubstr("Manca l'immagine"));
    EXPECT_THAT(Complaint({"a"}), HasSubstr("Manca -o"));
    EXPECT_THAT(Complaint({"-o", "b"}), HasSubstr("Manca l'immagine"));
    EXPECT_THAT(Complaint({"a", "-o"}), HasSubstr("Manca il valore dopo -o"));
    EXPECT_THAT(Complaint({"-o", "", "a"}), HasSubstr("vuoto"));
    EXPECT_THAT(Complaint({"-o", "b", ""}), HasSubstr("vuoto"));
    EXPECT_THAT(Complaint({"-o", "b", "a", "c"}), HasSubstr("Con più immagini serve -d"));
    EXPECT_THAT(Complaint({"-o", "b", "-d", "f", "a"}), HasSubstr("non possono stare insieme"));
    EXPECT_THAT(Complaint({"-o", "b", "-o", "c", "a"}), HasSubstr("due volte"));
    EXPECT_THAT(Complaint({"-d", "f", "-"}), HasSubstr("standard input"));
    EXPECT_THAT(Complaint({"--tutti", "-d", "f"}), HasSubstr("Manca l'immagine"));
    EXPECT_THAT(Complaint({"--tutti", "-d", "f", "a", "b"}), HasSubstr("una sola"));
    EXPECT_THAT(Complaint({"--tutti", "-d", "f", "-"}), HasSubstr("ha bisogno di un file"));
    EXPECT_THAT(Complaint({"--tutti", "a"}), HasSubstr("serve -d"));
    EXPECT_THAT(Complaint({"--tutti", "-o", "b", "a"}), HasSubstr("serve -d"));
    EXPECT_THAT(Complaint({"--tutti", "-d", "f", "-e", "Specchio", "a"}),
                HasSubstr("non si può usare con -e"));
    EXPECT_THAT(Complaint({"-x", "a"}), HasSubstr("«-x»"));
    EXPECT_THAT(Complaint({"--chissà", "a"}), HasSubstr("«--chissà»"));
    EXPECT_THAT(Complaint({"--silenzioso=1", "a"}), HasSubstr("non prende un valore"));
}

TEST(CommandLine, RefusesWhatIsNoWholeNumber)
{
    for (const auto* const text : {"", "x", "1x", "-1", "1.5", " 1", "18446744073709551616"})
        EXPECT_THAT(Complaint({"--seme", text, "-o", "b", "a"}), HasSubstr("numero intero"))
            << text;
    for (const auto* const text : {"0", "-2", "2147483648", "due"})
        EXPECT_THAT(Complaint({"--entro", text, "-o", "b", "a"}), HasSubstr("numero intero"))
            << text;
    for (const auto* const text : {"0", "-2", "4294967296", "due"})
        EXPECT_THAT(Complaint({"-j", text, "-o", "b", "a"}), HasSubstr("numero intero")) << text;
    for (const auto* const text : {"0", "101", "9O"})
        EXPECT_THAT(Complaint({"--qualita", text, "-o", "b", "a"}), HasSubstr("da 1 a 100"))
            << text;
}

TEST(Step, NeedsTheExactName)
{
    EXPECT_EQ(ParseStep("Capovolgi a Specchio").effect->name, "Capovolgi a Specchio");
    for (const auto* const text : {"", "specchio", "Specchio ", "Specchi", "Capovolgi=", "=5"})
        EXPECT_THROW(ParseStep(text), WrongCommandLine) << text;
}

TEST(Step, NamesTheNearestEffectWhenThereIsNone)
{
    EXPECT_THAT(Complaint({"-e", "specio", "-o", "b", "a"}), HasSubstr("forse «Specchio»?"));
    EXPECT_THAT(Complaint({"-e", "qwertyuiop", "-o", "b", "a"}),
                testing::AllOf(HasSubstr("--elenco"), testing::Not(HasSubstr("forse"))));
}

TEST(Step, TakesAStrengthOnlyWhereTheEffectHasOne)
{
    EXPECT_EQ(ParseStep("Vetro=2500").strength, 2500);
    EXPECT_EQ(ParseStep("Vetro=-0.5").strength, -0.5);
    EXPECT_FALSE(ParseStep("Vetro").strength);
    EXPECT_THAT(Complaint({"-e", "Specchio=3", "-o", "b", "a"}), HasSubstr("non ha una forza"));
}

TEST(Step, RefusesAStrengthThatIsNoNumber)
{
    for (const auto* const text :
         {"Vetro=", "Vetro=x", "Vetro=1,5", "Vetro=1 ", "Vetro=inf", "Vetro=nan", "Vetro=1e999",
          "Vetro=0x10", "Vetro=1=2", "Vetro=+1"})
        EXPECT_THROW(ParseStep(text), WrongCommandLine) << text;
}

}  // namespace
}  // namespace pixano::batch::test
