#include "batch/plan.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace pixano::batch::test {
namespace {

using pixano::test::TemporaryFolder;
using pixano::test::WriteBytes;
namespace fs = std::filesystem;

CommandLine Into(const std::string& folder, std::vector<std::string> inputs)
{
    CommandLine line;
    line.folder = folder;
    line.inputs = std::move(inputs);
    return line;
}

CommandLine To(const std::string& output, const std::string& input)
{
    CommandLine line;
    line.output = output;
    line.inputs = {input};
    return line;
}

TEST(Plan, NamesResultsAfterTheirPictures)
{
    const auto pictures = PlanPictures(Into("out", {"in/a.jpg", "b.tar.gif", "c"}));
    ASSERT_EQ(pictures.size(), 3U);
    EXPECT_EQ(pictures[0].output, "out/a.bmp");
    EXPECT_EQ(pictures[1].output, "out/b.tar.bmp");
    EXPECT_EQ(pictures[2].output, "out/c.bmp");
    EXPECT_EQ(pictures[0].input, "in/a.jpg");
}

TEST(Plan, RefusesTwoResultsOfOneName)
{
    EXPECT_THROW(PlanPictures(Into("out", {"x/a.jpg", "y/a.gif"})), WrongCommandLine);
    EXPECT_THROW(PlanPictures(Into("out", {"a.jpg", "a.jpg"})), WrongCommandLine);
}

TEST(Plan, RefusesToReplaceAPictureThatIsRead)
{
    const TemporaryFolder folder;
    const std::string picture = folder / "a.bmp";
    WriteBytes(picture, "x");
    WriteBytes(folder / "b.jpg", "x");
    fs::create_symlink(picture, folder / "link.bmp");
    fs::create_hard_link(picture, folder / "twin.bmp");
    EXPECT_THROW(PlanPictures(To(picture, picture)), WrongCommandLine);
    EXPECT_THROW(PlanPictures(To(folder / "./a.bmp", picture)), WrongCommandLine);
    EXPECT_THROW(PlanPictures(To(folder / "link.bmp", picture)), WrongCommandLine);
    EXPECT_THROW(PlanPictures(To(folder / "twin.bmp", picture)), WrongCommandLine);
    EXPECT_THROW(PlanPictures(Into(folder / "", {folder / "b.jpg", picture})), WrongCommandLine);
    // b.bmp does not exist, and would replace nothing.
    EXPECT_EQ(PlanPictures(Into(folder / "", {folder / "b.jpg"})).size(), 1U);
}

TEST(Plan, NamesTheSmallPicturesOfASheetAfterTheirEffects)
{
    const PlannedSheet sheet = PlanSheet(Into("out", {"in/a.jpg"}));
    std::map<std::string_view, std::string> names;
    for (std::size_t i = 0; i < Effects.size(); ++i)
        names[Effects[i].name] = sheet.effects.at(i).output;
    EXPECT_EQ(sheet.effects.size(), Effects.size());
    EXPECT_EQ(names["Specchio"], "out/specchio.jpg");
    EXPECT_EQ(names["Rotazione -90°"], "out/rotazione-meno-90.jpg");
    EXPECT_EQ(names["Rotazione +90°"], "out/rotazione-piu-90.jpg");
    EXPECT_EQ(names["Rifl.o Oriz. Superiore"], "out/riflo-oriz-superiore.jpg");
    EXPECT_EQ(sheet.original, "out/originale.jpg");
    EXPECT_EQ(sheet.page, "out/index.html");
    std::set<std::string> different;
    for (const PlannedPicture& picture : sheet.effects)
        different.insert(picture.output);
    EXPECT_EQ(different.size(), Effects.size());
}

TEST(Plan, RefusesASheetThatWouldReplaceItsPicture)
{
    const TemporaryFolder folder;
    for (const char* const name : {"specchio.jpg", "originale.jpg", "index.html", "mio.jpg"})
        WriteBytes(folder / name, "x");
    for (const char* const name : {"specchio.jpg", "originale.jpg", "index.html"})
        EXPECT_THROW(PlanSheet(Into(folder / "", {folder / name})), WrongCommandLine) << name;
    EXPECT_NO_THROW(PlanSheet(Into(folder / "", {folder / "mio.jpg"})));
}

TEST(Plan, RefusesFormatsThatAreNotWritten)
{
    EXPECT_THROW(PlanPictures(To("out.gif", "a")), WrongCommandLine);
    for (const auto* const name :
         {"out.bmp", "out.BMP", "out.png", "out.jpg", "out.Jpeg", "out", "-"})
        EXPECT_EQ(PlanPictures(To(name, "a"))[0].output, name);
}

}  // namespace
}  // namespace pixano::batch::test
