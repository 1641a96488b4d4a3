// The tool on many pictures, and what it tells about itself.
#include "batch/tool_run.h"

#include "effects/catalogue.h"
#include "support/effect_run.h"

#include <sys/resource.h>

namespace pixano::batch::test {
namespace {

using testing::HasSubstr;

/// The first effect that draws random numbers and takes no strength, after "Specchio".
std::vector<std::string> RandomEffects()
{
    std::vector<std::string> arguments{"-e", "Specchio"};
    for (const Effect& effect : Effects)
        if (effect.reseeds && effect.selector == 0) {
            arguments.insert(arguments.end(), {"-e", std::string(effect.name)});
            break;
        }
    return arguments;
}

class ManyPictures : public Tool {
  protected:
    static constexpr int Count = 12;

    ManyPictures()
    {
        for (int i = 0; i < Count; ++i)
            SaveBitmap(pixano::test::Varied(60 + 5 * i, 90 - 3 * i), File(Name(i) + ".bmp"));
    }

    static std::string Name(int i) { return "foto" + std::to_string(i); }

    /// The tool's arguments, with the pictures in the given order, into a new folder.
    Ran RunInto(const std::string& results, std::vector<std::string> arguments, bool reversed)
    {
        std::filesystem::create_directory(File(results));
        const auto effects = RandomEffects();
        arguments.insert(arguments.end(), effects.begin(), effects.end());
        arguments.insert(arguments.end(), {"--seme", "5", "-d", results});
        for (int i = 0; i < Count; ++i)
            arguments.push_back(Name(reversed ? Count - 1 - i : i) + ".bmp");
        return Run(arguments);
    }
};

TEST_F(ManyPictures, ComeOutAlikeWhateverRunsBesideThem)
{
    EXPECT_EQ(RunInto("one", {"-j", "1"}, false).status, 0);
    EXPECT_EQ(RunInto("five", {"-j5"}, true).status, 0);
    EXPECT_EQ(RunInto("all", {}, false).status, 0);
    for (int i = 0; i < Count; ++i) {
        const std::string file = Name(i) + ".bmp";
        EXPECT_EQ(Bytes("one/" + file), Bytes("five/" + file));
        EXPECT_EQ(Bytes("one/" + file), Bytes("all/" + file));
    }
    auto alone = RandomEffects();
    alone.insert(alone.end(), {"--seme", "5", "-o", "alone.bmp", Name(7) + ".bmp"});
    EXPECT_EQ(Run(alone).status, 0);
    EXPECT_EQ(Bytes("alone.bmp"), Bytes("one/" + Name(7) + ".bmp"));
}

// Pictures as large as these lie in memory where others lay before.
TEST_F(ManyPictures, LeaveNothingInThoseThatFollow)
{
    const std::vector<std::pair<int, int>> sizes{{1500, 1100}, {1100, 1000}, {1500, 1100},
                                                 {1600, 1500}, {1100, 1000}, {1500, 1100}};
    std::filesystem::create_directory(File("results"));
    std::vector<std::string> twice{"-j", "1", "-e", "Specchio", "-e", "Specchio", "-d", "results"};
    const auto name = [](std::size_t i) { return "large" + std::to_string(i) + ".bmp"; };
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        SaveBitmap(pixano::test::Varied(sizes[i].first, sizes[i].second), File(name(i)));
        twice.push_back(name(i));
    }
    EXPECT_EQ(Run(twice).status, 0);
    for (std::size_t i = 0; i < sizes.size(); ++i)
        EXPECT_TRUE(Bytes("results/" + name(i)) == Bytes(name(i))) << i;
}

TEST_F(ManyPictures, AreToldInTheirOrder)
{
    const std::string out = RunInto("results", {"-j", "4"}, false).out;
    std::size_t last = 0;
    for (int i = 0; i < Count; ++i) {
        const std::size_t at = out.find("results/" + Name(i) + ".bmp: ");
        ASSERT_NE(at, std::string::npos) << out;
        EXPECT_TRUE(i == 0 || at > last);
        last = at;
    }
}

TEST_F(ManyPictures, GoOnWhenOneFails)
{
    WriteBytes(File("foto3.bmp"), "spoilt");
    const Ran ran = RunInto("results", {"-j", "3"}, false);
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("foto3.bmp"));
    EXPECT_THAT(ran.out, testing::Not(HasSubstr("foto3.bmp")));
    for (int i = 0; i < Count; ++i)
        EXPECT_EQ(Exists("results/" + Name(i) + ".bmp"), i != 3) << i;
}

TEST_F(ManyPictures, NeedTheirFolder)
{
    const Ran ran = Run({"-d", "missing", "foto1.bmp", "foto2.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("missing"));
    EXPECT_FALSE(Exists("missing"));
}

// On a terminal, which "script" stands for: one line that is written over again and again, gone
// before a result is told.
/// How often the programs that have ended were given a fresh page.
long PagesGiven()
{
    rusage usage{};
    EXPECT_EQ(getrusage(RUSAGE_CHILDREN, &usage), 0);
    return usage.ru_minflt;
}

TEST_F(Tool, UsesThePagesOfOnePictureAgainForTheNext)
{
    constexpr int Count = 60;
    // Canvas, working file and matrix cells of one picture have some 400 pages.
    constexpr long MostOfAPicture = 50;
    std::filesystem::create_directory(File("fatte"));
    for (const char* const jobs : {"-j1", "-j2"}) {
        std::vector<std::string> command{"-e", "Specchio", "-e", "Vetro", "-d", "fatte", jobs};
        const long before = PagesGiven();
        SaveBitmap(Surface(320, 240, 0x123456), File("0.bmp"));
        ASSERT_EQ(Run({"-e", "Specchio", "-e", "Vetro", "-o", "una.bmp", "0.bmp"}).status, 0);
        const long one = PagesGiven() - before;
        for (int i = 0; i < Count; ++i) {
            command.push_back(std::to_string(i) + ".bmp");
            SaveBitmap(Surface(320, 240, 0x123456), File(command.back()));
        }
        ASSERT_EQ(Run(command).status, 0);
        EXPECT_LT(PagesGiven() - before - 3 * one, Count * MostOfAPicture) << jobs;
    }
}

TEST_F(Tool, ShowsItsProgressOnATerminal)
{
    SaveBitmap(Surface(1400, 1400, 0x123456), File("grande.bmp"));
    SaveBitmap(Surface(1400, 1400, 0x654321), File("altra.bmp"));
    std::string command = "TERM=xterm '" + program + "' -j 1";
    for (int i = 0; i < 30; ++i)
        command += " -e Vetro=2500";
    for (const char* const quiet : {"", " --silenzioso"}) {
        std::filesystem::create_directories(File("fatte"));
        const Ran ran = RunProgram(
            {"script", "-qec", command + quiet + " -d fatte grande.bmp altra.bmp", "/dev/null"},
            Folder());
        EXPECT_EQ(ran.status, 0);
        if (*quiet != 0) {
            EXPECT_EQ(ran.out, "");
            continue;
        }
        EXPECT_THAT(ran.out, HasSubstr("\r\033[K0 immagini su 2   Vetro  ("));
        EXPECT_THAT(ran.out, HasSubstr("%)\r\033[Kfatte/grande.bmp: Vetro   1400x1400"));
    }
}

TEST_F(ManyPictures, OfOneNameAreRefused)
{
    std::filesystem::create_directory(File("other"));
    Draw("other/foto1.bmp", {"ab"});
    const Ran ran = Run({"-d", "other", "foto1.bmp", "other/foto1.bmp"});
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(Result("other/foto1.bmp"), (Letters{"ab"}));
}

TEST_F(Tool, ListsEveryEffectWithFamilyAndStrength)
{
    const Ran ran = Run({"--elenco"});
    EXPECT_EQ(ran.status, 0);
    std::istringstream lines(ran.out);
    std::string line;
    for (const Effect& effect : Effects) {
        ASSERT_TRUE(std::getline(lines, line));
        const std::size_t first = line.find('\t');
        const std::size_t second = line.find('\t', first + 1);
        EXPECT_EQ(line.substr(0, first), effect.name);
        EXPECT_EQ(line.substr(second + 1), effect.selector != 0 ? "0-10000" : "") << line;
    }
    EXPECT_FALSE(std::getline(lines, line));
    EXPECT_THAT(ran.out, HasSubstr("Specchio\tGeometria\t\n"));
}

TEST_F(Tool, TellsAboutItself)
{
    EXPECT_EQ(Run({"--versione"}).out, "Pixano 2.3\n");
    const Ran help = Run({"--aiuto"});
    EXPECT_EQ(help.status, 0);
    for (const auto* const option : {"-e", "-o", "-d", "-j", "--seme", "--silenzioso", "--elenco"})
        EXPECT_THAT(help.out, HasSubstr(option));
}

}  // namespace
}  // namespace pixano::batch::test
