// The history of work that a run before this one had begun.
#include "document/after_a_kill.h"
#include "document/working_pictures.h"

namespace pixano::test {
namespace {

using WorkBroughtBack = AfterAKill;

// "Originale" would lead past it, to the picture in its file.
TEST_F(WorkBroughtBack, IsReachedAgainAfterTheNextEffect)
{
    Kill();
    dialogs.answers = {true};
    Offer();
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"ba~"}));
    EXPECT_EQ(MenuHistory(), (History{true, true, false}));
    EXPECT_EQ(PaletteHistory(), (History{true, true, false}));
    ClickEntry(entry::Undo);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    ClickEntry(entry::Redo);
    EXPECT_EQ(CanvasLetters(), (Letters{"ba~"}));
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
}

// What is painted keeps its odd sides all the same.
TEST_F(WorkBroughtBack, MayHaveSidesThatAnEffectHasMadeEven)
{
    Surface before;
    {
        StartedDesk killed;
        killed.Open(Made("a.bmp", Drawn({"abc", "def", "ghi"})));
        killed.Apply("Multifoto");
        EXPECT_EQ(killed.session.work.Larg, 2);
        before = killed.session.work.Picture1;
    }
    dialogs.answers = {true};
    Offer();
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_EQ(session.work.Picture1, before);
}

// Its file is the program's own, and goes in the end.
TEST_F(WorkBroughtBack, IsNotSavedWhereAPastedPictureLies)
{
    {
        StartedDesk killed;
        const QString pasted = Data("appunti-120000-000.bmp");
        SaveWorkingPicture(Drawn({"abc"}), pasted);
        killed.Open(pasted);
        killed.Apply("Specchio");
    }
    dialogs.answers = {true};
    Offer();
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    dialogs.saveNames = {std::nullopt};
    ClickEntry(entry::Salva);
    EXPECT_EQ(dialogs.saveFolders, std::vector<QString>{QDir::currentPath()});
}

}  // namespace
}  // namespace pixano::test
