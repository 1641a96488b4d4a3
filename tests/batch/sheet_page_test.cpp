// The page of all effects: what it says, and the commands that it gives.
#include "batch/sheet_page.h"

#include "effects/catalogue.h"

#include <gmock/gmock-matchers.h>

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

SheetEntry Entry(std::string_view effect, std::optional<double> strength = {})
{
    SheetEntry entry;
    entry.step = {FindEffect(effect), strength};
    entry.shown = {"file.jpg", 240, 180};
    return entry;
}

/// A picture of 640 x 480.
SheetContents Contents(const std::string& input = "a.bmp")
{
    SheetContents contents;
    contents.input = input;
    contents.width = 640;
    contents.height = 480;
    contents.seed = 1;
    contents.original = {"originale.jpg", 120, 90};
    return contents;
}

struct Repeated {
    const char* input;
    const char* last;  ///< the command's end
};

TEST(SheetPage, GivesACommandThatAnyShellUnderstands)
{
    const std::string start = "pixano-batch --seme 1 -e Specchio -o file.bmp ";
    for (const auto& [input, last] : {Repeated{"a.bmp", "a.bmp"},
                                      {"mie/foto_1-2.JPG", "mie/foto_1-2.JPG"},
                                      {"a b.bmp", "'a b.bmp'"},
                                      {"l'onda.bmp", "'l'\\''onda.bmp'"},
                                      {"$HOME.bmp", "'$HOME.bmp'"},
                                      {"a;b.bmp", "'a;b.bmp'"},
                                      {"è.bmp", "'è.bmp'"},
                                      {"-e.bmp", "-- -e.bmp"}})
        EXPECT_EQ(RepeatingCommand(Contents(input), Entry("Specchio")), start + last);
}

TEST(SheetPage, RepeatsSeedSizeAndStrength)
{
    SheetContents contents = Contents();
    contents.seed = 18446744073709551615U;
    contents.within = 800;
    EXPECT_EQ(RepeatingCommand(contents, Entry("Vetro", 2500)),
              "pixano-batch --entro 800 --seme 18446744073709551615 -e 'Vetro=2500' -o file.bmp "
              "a.bmp");
    EXPECT_EQ(RepeatingCommand(Contents(), Entry("Vetro", 0.5)),
              "pixano-batch --seme 1 -e 'Vetro=0.5' -o file.bmp a.bmp");
    EXPECT_EQ(RepeatingCommand(Contents(), Entry("Mini Foto Rnd")),
              "pixano-batch --seme 1 -e 'Mini Foto Rnd' -o file.bmp a.bmp");
}

TEST(SheetPage, ShowsEachPictureInItsSize)
{
    SheetContents contents = Contents("in/<a> & \"b\".bmp");
    contents.entries = {Entry("Vetro", 2500.5), Entry("Specchio")};
    const std::string page = SheetPage(contents);
    const std::string name = "&lt;a&gt; &amp; &quot;b&quot;.bmp";
    EXPECT_THAT(
        page,
        AllOf(HasSubstr("<title>Gli effetti di Pixano su " + name + "</title>"),
              HasSubstr("<h1>Gli effetti di Pixano su " + name + "</h1>"),
              HasSubstr("sulla stessa immagine di 640 x 480 pixel; sotto,"),
              HasSubstr("<img src=\"originale.jpg\" alt=\"L'immagine di partenza\" width=\"120\" "
                        "height=\"90\""),
              HasSubstr("<img src=\"file.jpg\" alt=\"Vetro\" width=\"240\" height=\"180\""),
              HasSubstr("<b>Vetro</b>forza 2500.5<code>"), HasSubstr("<b>Specchio</b><code>")));
    // Families in their order, and none that is empty.
    EXPECT_LT(page.find("<h2>Geometria</h2>"), page.find("<h2>Colori</h2>"));
    EXPECT_THAT(page, AllOf(Not(HasSubstr("Composizione")), Not(HasSubstr("non consente"))));
}

TEST(SheetPage, TellsWhatTheSizeDoesNotAllow)
{
    SheetContents contents = Contents();
    SheetEntry refused;
    refused.step.effect = FindEffect("Forbici");
    refused.refusal = "Forbici: <troppo> grande";
    contents.entries = {Entry("Specchio"), refused};
    contents.width = 1401;
    EXPECT_THAT(SheetPage(contents),
                AllOf(HasSubstr("<h2>Effetti che questa misura non consente</h2>\n<ul>\n"
                                "<li>Forbici: &lt;troppo&gt; grande.</li>\n</ul>"),
                      HasSubstr("si riduce con <b>--entro 1400</b>"), Not(HasSubstr("Colori"))));
    // Where it is not too large but too long, making it smaller does not help.
    contents.width = 1400;
    EXPECT_THAT(SheetPage(contents), AllOf(HasSubstr("non consente"), Not(HasSubstr("--entro"))));
}

}  // namespace
}  // namespace pixano::batch::test
