// The picture that is open already, chosen once more: it is not read again, and its changes stay.
#include "support/program.h"

namespace pixano::test {
namespace {

TEST_F(Program, DoesNotReadTheSameUnchangedPictureAgain)
{
    Open("a.bmp", Drawn({"abc"}));
    Made("a.bmp", Drawn({"xyz"}));
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(session.doc.NomeFile, Path("a.bmp"));
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Program, KeepsThePictureAndItsChangesWhenTheSameIsChosenAfterNo)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    QFile::remove(Path("percors.dat"));
    dialogs.answers = {false};
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.NomeFile, "");
    EXPECT_EQ(CanvasCaption(), "Specchio   3x1");
    EXPECT_TRUE(Enabled(entry::Salva));
    EXPECT_EQ(MenuHistory(), (History{false, true, false}));
    EXPECT_FALSE(Exists(Path("percors.dat")));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                      "L'immagine «" + Path("a.bmp") +
                                          "» è già aperta, e non viene letta un'altra volta: per "
                                          "questo c'è «Originale»."}}));
}

TEST_F(Program, TellsThatAChangedPictureIsNotReadAgainThoughThereIsNoWayBackToIt)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    QFile::remove(Path("a.bmp"));
    ClickEntry(entry::Orig);
    ASSERT_FALSE(Enabled(entry::Orig));
    Made("a.bmp", Drawn({"abc"}));
    dialogs.told.clear();
    dialogs.answers = {false};
    Open(Path("a.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                      "L'immagine «" + Path("a.bmp") +
                                          "» è già aperta, e non viene letta un'altra volta."}}));
}

TEST_F(Program, GoesBackToTheOpenedPictureAfterTheSameWasChosenAgain)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.answers = {false};
    Open(Path("a.bmp"));
    dialogs.told.clear();
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(session.doc.Modificato, 0);
    Open(Path("a.bmp"));
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Program, KeepsThePictureWhenTheSameIsChosenTwiceAfterNo)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.answers = {false, false};
    Open(Path("a.bmp"));
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(Program, OpensAnotherPictureAfterTheSameWasChosenAgain)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.answers = {false, false};
    Open(Path("a.bmp"));
    Open("b.bmp", Drawn({"xy"}));
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NomeFile, Path("b.bmp"));
}

}  // namespace
}  // namespace pixano::test
