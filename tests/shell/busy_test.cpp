// One command at a time: whatever is started from inside another one is ignored.
#include "shell/spy_effect.h"
#include "support/program.h"

namespace pixano::test {
namespace {

class Busy : public Program {
  protected:
    Busy()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        Apply("Specchio");
    }
    ~Busy() override { SpyAction() = nullptr; }

    /// Tries every kind of command; none may do anything.
    void TryEverything()
    {
        session.form1.Control(entry::Apri - 1).trigger();
        session.form1.Control(entry::Undo - 1).trigger();
        session.form1.Control(entry::Inf - 1).trigger();
        session.form1.Control(30).trigger();
        EXPECT_TRUE(session.form1.Control(30).isChecked());
        Button("SSCommand16").click();
        Button("SSCommand4").click();
        Button("Command1").click();
        emit session.drops.Dropped(Path("a.bmp"));
        EXPECT_FALSE(session.form1.close());
        EXPECT_FALSE(session.form2.close());
        EXPECT_FALSE(session.form9.close());
    }
};

TEST_F(Busy, IgnoresCommandsStartedInsideAnEffect)
{
    SpyAction() = [&](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
        dialogs.openFolders.clear();
        TryEverything();
        EXPECT_TRUE(dialogs.openFolders.empty());
        EXPECT_EQ(session.doc.Effetto, "Spia");
        EXPECT_EQ(session.doc.NumEffetti, 3);
    };
    RunInFrame(Spy());
    EXPECT_EQ(CanvasCaption(), "Spia   3x1");
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(session.doc.Zoom, 1);
    EXPECT_TRUE(session.form2.isVisible());
    EXPECT_FALSE(session.ending.has_value());
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Busy, IgnoresCommandsStartedWhileADialogIsOpen)
{
    dialogs.answers = {false};
    dialogs.openNames.push_back(std::nullopt);
    dialogs.openFolders.clear();
    dialogs.meanwhile = [&] { TryEverything(); };
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.openFolders.size(), 1U);
    EXPECT_EQ(session.doc.NumEffetti, 2);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_FALSE(session.ending.has_value());
}

TEST_F(Busy, TakesCommandsAgainAfterAFault)
{
    SpyAction() = [](Work&) { throw Fault(FaultKind::DivisionByZero); };
    dialogs.meanwhile = [&] { TryEverything(); };
    RunInFrame(Spy());
    dialogs.meanwhile = [] {};
    EXPECT_EQ(dialogs.told.size(), 1U);
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
}

TEST_F(Busy, TakesCommandsAgainAfterAClosingThatWasCalledOff)
{
    dialogs.answers = {true};
    dialogs.saveNames.push_back(Path("manca/s.bmp"));
    EXPECT_FALSE(session.form1.close());
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
}

}  // namespace
}  // namespace pixano::test
