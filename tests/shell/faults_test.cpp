// Run-time errors: what the user is told, what stays behind, and how the program goes on.
#include "canvas/fault.h"
#include "shell/failing_halfway.h"

namespace pixano::test {
namespace {

ShownBox ErrorIn(const QString& command, const QString& what)
{
    return {BoxIcon::Critical, "Attenzione!",
            "Errore durante il comando «" + command + "»:\n" + what + "."};
}

TEST_F(Faults, AreToldInOneBoxThatNamesTheCommand)
{
    FailHalfway();
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{
                  ErrorIn("Spia", "Il file «" + Path("elab.ser") + "» finisce troppo presto")}));
    EXPECT_FALSE(session.ending.has_value());
}

TEST_F(Faults, LeaveTheCanvasHalfDrawnAndNothingMarked)
{
    FailHalfway();
    EXPECT_EQ(CanvasLetters(), (Letters{"xbc", "def"}));
    EXPECT_EQ(PreviewLetters(), (Letters{"abc", "def"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x2");
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.Effetto, "Spia");
    EXPECT_TRUE(Exists(Path("elab.ser")));
    EXPECT_EQ(Kept(Data("temp.bml")), (Letters{"abc", "def"}));
}

TEST_F(Faults, LeaveTheProgressWindowOpen)
{
    FailHalfway();
    EXPECT_TRUE(session.form4.isVisible());
    EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia  (50%)");
    EXPECT_EQ(session.form10.cursor().shape(), Qt::ArrowCursor) << "it waits for the user";
}

TEST_F(Faults, LetTheNextEffectWorkAndClearUp)
{
    FailHalfway();
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"cbx", "fed"}));
    EXPECT_EQ(CanvasCaption(), "Specchio   3x2");
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_FALSE(session.form4.isVisible());
    EXPECT_FALSE(Exists(Path("elab.ser")));
    EXPECT_EQ(dialogs.told.size(), 1U);
}

TEST_F(Faults, LetTheUserCloseTheProgressWindowWhichRefreshesThePreview)
{
    FailHalfway();
    EXPECT_TRUE(session.form4.close());
    EXPECT_FALSE(session.form4.isVisible());
    EXPECT_EQ(PreviewLetters(), (Letters{"xbc", "def"}));
    EXPECT_EQ(PaletteHistory(), (History{false, true, false}));
    EXPECT_EQ(session.form10.cursor().shape(), Qt::ArrowCursor);
    // The next effect's caption is its own again.
    SpyAction() = [&](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Altra  (0%)");
    };
    Effect other = Spy();
    other.name = "Altra";
    RunInFrame(other);
}

TEST_F(Faults, ShowNoPreviewWhenTheProgressWindowOutlivesTheDocument)
{
    FailHalfway();
    session.form2.close();
    session.form4.close();
    EXPECT_FALSE(session.form9.isVisible());
    EXPECT_FALSE(session.form10.isVisible());
}

TEST_F(Faults, LetUndoBringThePictureBack)
{
    Apply("Specchio");
    FailHalfway();
    ClickEntry(entry::Undo);
    EXPECT_EQ(CanvasLetters(), (Letters{"cba", "fed"}));
}

TEST_F(Faults, ChangeNothingWhenThePixelFileCannotBeMade)
{
    QDir::current().mkdir("elab.ser");
    Apply("Specchio");
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_THAT(dialogs.told[0].text.toStdString(),
                testing::StartsWith("Errore durante il comando «Specchio»:\n"));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_FALSE(session.form4.isVisible());
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(Faults, ChangeNoPixelWhenTheSnapshotCannotBeWritten)
{
    QDir().mkpath(Data("temp.bml"));
    Apply("Specchio");
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{ErrorIn(
                  "Specchio", "Impossibile salvare «" + Data("temp.bml") + "»: è una cartella")}));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_FALSE(Exists(Path("elab.ser")));
    EXPECT_FALSE(session.form4.isVisible());
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(Faults, EndOnlyTheCommandWhereThePictureIsRefused)
{
    Apply("Multi Step Verticale");
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{ErrorIn(
                                "Multi Step Verticale",
                                "Operazione impossibile: l'immagine è larga meno di 6 pixel")}));
    EXPECT_FALSE(session.ending.has_value());
}

TEST_F(Faults, AreToldBeforeWhatElseThereIsToTellAndEachThingOnce)
{
    const auto tell = [this](bool failing) {
        dialogs.told.clear();
        RunCommand(session, "Prova", Fatal::None, [&] {
            session.remarks += "Prima cosa";
            session.remarks += "Seconda cosa";
            session.remarks += "Prima cosa";
            if (failing) throw Fault(FaultKind::DivisionByZero);
        });
    };
    const QString remarks = "Prima cosa.\n\nSeconda cosa.";
    tell(true);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(dialogs.told[0].icon, BoxIcon::Critical);
    EXPECT_TRUE(dialogs.told[0].text.startsWith("Errore durante il comando «Prova»:\n"));
    EXPECT_TRUE(dialogs.told[0].text.endsWith(".\n\n" + remarks)) << dialogs.told[0];
    // Nothing of it is left for the next command.
    tell(false);
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!", remarks}}));
}

TEST_F(Faults, EndOnlyTheCommandThatMemoryIsTooShortFor)
{
    RunCommand(session, "Prova", Fatal::IndexAndDivision, [] { throw std::bad_alloc(); });
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{ErrorIn("Prova", "La memoria non basta")}));
    EXPECT_FALSE(session.ending.has_value());
}

TEST_F(Faults, LeaveNoProgressWindowWhenTheProgramEnds)
{
    FailHalfway();
    ASSERT_TRUE(session.form4.isVisible());
    EXPECT_TRUE(session.form1.close());
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

}  // namespace
}  // namespace pixano::test
