// The tool on one picture with every effect, and on pictures that are made smaller first.
#include "batch/tool_run.h"
#include "effects/catalogue.h"

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr int HowMany = static_cast<int>(Effects.size());

int Count(const std::string& text, const std::string& part)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

class SheetRun : public Tool {
  protected:
    SheetRun() { std::filesystem::create_directory(File("foglio")); }

    /// Runs the line that a person would copy from the page.
    Ran Repeat(const std::string& command) const
    {
        const std::string folderOfTool = std::filesystem::path(program).parent_path().string();
        return RunProgram({"/bin/sh", "-c", "PATH='" + folderOfTool + "':$PATH; " + command},
                          Folder());
    }
    std::string Page() const { return Bytes("foglio/index.html"); }
};

TEST_F(SheetRun, ShowsEveryEffectThatTheSizeAllows)
{
    Draw("a.bmp", Letters(48, std::string(64, 'a')));
    const Ran ran = Run({"--tutti", "-d", "foglio", "a.bmp"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(ran.out, AllOf(HasSubstr("foglio/vetro.jpg: Vetro   64x48\n"),
                               HasSubstr("foglio/mini-foto-rnd.jpg: Mini Foto Rnd   64x48\n"),
                               testing::EndsWith("\nfoglio/index.html\n")));
    const std::string page = Page();
    EXPECT_EQ(Count(page, "<figure>"), HowMany + 1);
    EXPECT_EQ(Count(page, "<code>"), HowMany);
    EXPECT_EQ(Count(page, "forza "),
              std::ranges::count_if(Effects, [](const Effect& e) { return e.selector != 0; }));
    EXPECT_THAT(page, AllOf(HasSubstr("<h2>Geometria</h2>"), HasSubstr("<h2>Colori</h2>"),
                            HasSubstr("<h2>Composizione</h2>"), Not(HasSubstr("non consente"))));
    // Each effect's file, the original's, and the page.
    EXPECT_EQ(Count(ran.out, "\n"), HowMany + 1);
    EXPECT_TRUE(Exists("foglio/originale.jpg"));
    for (const auto& entry : std::filesystem::directory_iterator(File("foglio")))
        EXPECT_THAT(ran.out + "foglio/originale.jpg",
                    HasSubstr("foglio/" + entry.path().filename().string()));
}

TEST_F(SheetRun, TellsWhichEffectsTheSizeDoesNotAllow)
{
    // Five columns and eight rows: too narrow for steps down the columns, not for those down the
    // rows.
    Draw("a.bmp", Letters(8, "abcde"));
    const Ran ran = Run({"--tutti", "-d", "foglio", "--silenzioso", "a.bmp"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("a.bmp: Multi Step Verticale: Operazione impossibile"));
    EXPECT_THAT(Page(), AllOf(HasSubstr("<li>Multi Step Verticale: Operazione impossibile"),
                              HasSubstr("multi-step-orizzontale.jpg"),
                              Not(HasSubstr("multi-step-verticale.jpg"))));
    EXPECT_FALSE(Exists("foglio/multi-step-verticale.jpg"));
}

TEST_F(SheetRun, GivesCommandsThatRepeatItsPictures)
{
    const std::string name = "l'onda & <il mare>.bmp";
    Letters rows;
    for (int y = 0; y < 30; ++y)
        rows.push_back(std::string("abcdefghijklmnopqrstuvwxyzABCDEFGHIJ").substr(y % 7) +
                       std::string(y % 7, 'x'));
    Draw(name, rows);
    ASSERT_EQ(Run({"--tutti", "-d", "foglio", "--entro", "24", name}).status, 0);
    const std::string page = Page();
    EXPECT_THAT(page, AllOf(HasSubstr("l'onda &amp; &lt;il mare&gt;.bmp"), Not(HasSubstr("<il"))));
    const std::string picture = R"('l'\''onda & <il mare>.bmp')";
    const std::string shownPicture = R"('l'\''onda &amp; &lt;il mare&gt;.bmp')";
    for (const auto& [step, file] : {std::pair("'Mini Foto Rnd'", "mini-foto-rnd"),
                                     {"'Vetro=5000'", "vetro"},
                                     {"Specchio", "specchio"}}) {
        const std::string command =
            "pixano-batch --entro 24 --seme 1 -e " + std::string(step) + " -o " + file + ".bmp ";
        ASSERT_THAT(page, HasSubstr("<code>" + command + shownPicture + "</code>"));
        ASSERT_EQ(Repeat(command + picture).status, 0);
        // Small enough to be shown as they are: only the format differs.
        ASSERT_EQ(Run({"-o", "again.jpg", std::string(file) + ".bmp"}).status, 0);
        EXPECT_EQ(Bytes("again.jpg"), Bytes("foglio/" + std::string(file) + ".jpg")) << file;
    }
}

TEST_F(SheetRun, NeedsItsFolderAndItsPicture)
{
    Draw("a.bmp", {"ab"});
    EXPECT_THAT(Run({"--tutti", "-d", "manca", "a.bmp"}).err, HasSubstr("«manca» non esiste"));
    const Ran ran = Run({"--tutti", "-d", "foglio", "manca.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("manca.bmp"));
    EXPECT_FALSE(Exists("foglio/index.html"));
}

TEST_F(SheetRun, StartsFromTheSeedThatIsAskedFor)
{
    Draw("a.bmp", Letters(48, std::string(64, 'a')));
    ASSERT_EQ(Run({"--tutti", "-d", "foglio", "--seme", "7", "a.bmp"}).status, 0);
    EXPECT_EQ(Count(Page(), "pixano-batch --seme 7 -e "), HowMany);
}

TEST_F(SheetRun, SaysOnceThatItsPictureIsDamaged)
{
    Draw("a.bmp", Letters(48, std::string(64, 'a')));
    WriteBytes(File("cut.bmp"), Bytes("a.bmp").substr(0, 5000));
    const Ran ran = Run({"--tutti", "-d", "foglio", "cut.bmp"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "pixano-batch: cut.bmp: attenzione, il file è incompleto o danneggiato; "
                       "quel che manca resta grigio\n");
}

TEST_F(SheetRun, GoesOnWhereOnePictureCannotBeWritten)
{
    Draw("a.bmp", Letters(48, std::string(64, 'a')));
    std::filesystem::create_directory(File("foglio/vetro.jpg"));
    const Ran ran = Run({"--tutti", "-d", "foglio", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "pixano-batch: Impossibile salvare «foglio/vetro.jpg»: è una cartella\n");
    EXPECT_EQ(Count(Page(), "<code>"), HowMany - 1);
    EXPECT_TRUE(Exists("foglio/specchio.jpg"));
}

TEST_F(SheetRun, SaysThatItsPageCannotBeWrittenOrTold)
{
    Draw("a.bmp", {"ab"});
    const Ran untold =
        RunProgram({"sh", "-c", "\"$0\" --tutti -d foglio a.bmp >/dev/full", program}, Folder());
    EXPECT_EQ(untold.status, 1);
    std::filesystem::remove(File("foglio/index.html"));
    std::filesystem::create_directory(File("foglio/index.html"));
    const Ran ran = Run({"--tutti", "--silenzioso", "-d", "foglio", "a.bmp"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("Impossibile salvare «foglio/index.html»: è una cartella\n"));
}

TEST_F(SheetRun, ShowsPicturesOf240PixelsAtMost)
{
    SaveBitmap(Surface(480, 120, 0x123456), File("a.bmp"));
    ASSERT_EQ(Run({"--tutti", "-d", "foglio", "a.bmp"}).status, 0);
    EXPECT_EQ(Count(Page(), " width=\"240\" height=\"60\""), Count(Page(), "<img "));
    EXPECT_EQ(ReadPicture(File("foglio/originale.jpg")).picture.Width(), 240);
}

TEST_F(SheetRun, NeedsAFolderAndNoFileOfThatName)
{
    Draw("a.bmp", {"ab"});
    WriteBytes(File("file"), "x");
    for (const std::string task : {"--tutti", "--silenzioso"}) {
        const Ran ran = Run({task, "-d", "file", "a.bmp"});
        EXPECT_EQ(ran.status, 1);
        EXPECT_EQ(ran.err, "pixano-batch: La cartella «file» non esiste\n");
    }
}

TEST_F(Tool, MakesLargerPicturesSmallerBeforeTheEffects)
{
    Draw("a.bmp", {"aabb", "aabb", "ccdd", "ccdd"});
    Draw("b.bmp", {"ab"});
    const Ran ran = Run({"--entro", "2", "-e", "Specchio", "-d", ".", "a.bmp"});
    EXPECT_EQ(ran.status, 2);  // it would replace what it reads
    EXPECT_EQ(Run({"--entro", "2", "-e", "Specchio", "-o", "c.bmp", "a.bmp"}).out,
              "c.bmp: Specchio   2x2\n");
    EXPECT_EQ(Result("c.bmp"), (Letters{"ba", "dc"}));
    EXPECT_EQ(Run({"--entro", "2", "-o", "d.bmp", "b.bmp"}).out, "d.bmp: b.bmp   2x1\n");
    EXPECT_EQ(Result("d.bmp"), (Letters{"ab"}));
}

}  // namespace
}  // namespace pixano::batch::test
