// Closing the canvas or the preview closes the document, not the program.
#include "document/seen.h"
#include "support/program.h"

namespace pixano::test {
namespace {

using CloseWindow = bool (*)(Session&);

struct Way {
    const char* name;
    CloseWindow close;
};

/// A picture is open that was changed twice; it is closed by one of the two windows.
class ClosingDocument : public Program, public testing::WithParamInterface<Way> {
  protected:
    ClosingDocument()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        Apply("Capovolgi");
    }

    bool Close() { return GetParam().close(session); }
    /// The document is closed: menus as after the start, no history, no companion windows.
    void ExpectClosed()
    {
        for (const int index : {3, 5, 24, 37, 57, 58, 59, 60})
            EXPECT_FALSE(Enabled(index)) << index;
        for (const int index : {1, 2, 14, 22, 23, 35, 36, 61, 62})
            EXPECT_TRUE(Enabled(index)) << index;
        EXPECT_FALSE(session.form9.isVisible());
        EXPECT_FALSE(session.form10.isVisible());
        EXPECT_TRUE(session.form1.isVisible());
        EXPECT_FALSE(session.ending.has_value());
        EXPECT_EQ(session.doc.Modificato, 0);
    }
};

INSTANTIATE_TEST_SUITE_P(Windows, ClosingDocument,
                         testing::Values(Way{"Canvas", [](Session& s) { return s.form2.close(); }},
                                         Way{"Preview",
                                             [](Session& s) { return s.form9.close(); }}),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(ClosingDocument, AsksInABoxWithoutIconAndTitle)
{
    dialogs.answers = {false};
    EXPECT_TRUE(Close());
    EXPECT_EQ(
        dialogs.asked,
        (std::vector<ShownBox>{{BoxIcon::None, "", "Salvare i cambiamenti del file elaborato?"}}));
    ExpectClosed();
}

TEST_P(ClosingDocument, NamesTheFileThatWasSavedLast)
{
    SaveAs(Path("s.bmp"));
    Apply("Specchio");
    dialogs.answers = {false};
    EXPECT_TRUE(Close());
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{
                  {BoxIcon::None, "", "Salvare i cambiamenti del file " + Path("s.bmp") + "?"}}));
}

TEST_P(ClosingDocument, AsksNothingWhenNothingWasChanged)
{
    SaveAs(Path("s.bmp"));
    EXPECT_TRUE(Close());
    EXPECT_TRUE(dialogs.asked.empty());
    ExpectClosed();
}

TEST_P(ClosingDocument, SavesAfterYes)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("s.bmp"));
    EXPECT_TRUE(Close());
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"~ab"}));
    ExpectClosed();
}

TEST_P(ClosingDocument, GoesOnWhenTheSaveDialogIsCancelled)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(std::nullopt);
    EXPECT_TRUE(Close());
    ExpectClosed();
}

TEST_P(ClosingDocument, IsCalledOffByASaveThatFails)
{
    const Seen before(session);
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("manca/s.bmp"));
    EXPECT_FALSE(Close());
    EXPECT_TRUE(session.form2.isVisible());
    EXPECT_TRUE(session.form9.isVisible());
    EXPECT_TRUE(session.form10.isVisible());
    EXPECT_TRUE(Seen(session) == before);
}

TEST_P(ClosingDocument, LetsTheSamePictureBeOpenedAgain)
{
    dialogs.answers = {false};
    Close();
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_TRUE(session.form2.isVisible());
    EXPECT_TRUE(session.form9.isVisible());
    EXPECT_TRUE(session.form10.isVisible());
    EXPECT_TRUE(Enabled(37));
    EXPECT_EQ(MenuHistory(), (History{false, false, false}));
}

TEST_P(ClosingDocument, LetsTheProgramEndWithoutAnotherQuestion)
{
    dialogs.answers = {false};
    Close();
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(session.ending, 0);
}

TEST_F(Program, ClosesTheCanvasButNotTheOtherWayRound)
{
    Open("a.bmp", Drawn({"abc"}));
    session.form9.close();
    EXPECT_TRUE(session.form2.isVisible());
    EXPECT_TRUE(session.form2.close());
    EXPECT_FALSE(session.form2.isVisible());
}

TEST_F(Program, KeepsTheDocumentWhenOnlyThePaletteIsClosed)
{
    Open("a.bmp", Drawn({"abc"}));
    session.form10.close();
    EXPECT_TRUE(Enabled(37));
    Apply("Specchio");
    EXPECT_TRUE(session.form10.isVisible());
}

}  // namespace
}  // namespace pixano::test
