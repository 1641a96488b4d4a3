// Run-time errors: what the user is told, what stays behind, and how the program goes on or ends.
#include "canvas/captures.h"
#include "canvas/fault.h"
#include "document/recovery_note.h"
#include "shell/spy_effect.h"
#include "support/program.h"

#include <QProgressBar>

namespace pixano::test {
namespace {

class Faults : public Program {
  protected:
    Faults() { Open("a.bmp", Drawn({"abc", "def"})); }
    ~Faults() override { SpyAction() = nullptr; }

    /// Captures, shows the progress window, paints one pixel, and then the file has an end.
    void FailHalfway(Fatal ends = Fatal::None)
    {
        SpyAction() = [](Work& w) {
            Cattura(w);
            w.ShowProgress();
            w.Avanzamento(1);
            w.Picture1.PSet(0, 0, ColourOf('x'));
            // (3 + 1) x (2 + 1) values were captured.
            for (int i = 0; i <= 12; ++i)
                w.Input();
        };
        Effect spy = Spy();
        spy.fatal = ends;
        RunInFrame(spy);
    }
    /// The files of unsaved work in the data folder.
    QStringList Conserved() const { return QDir(Data("")).entryList({"lavoro-*.bmp"}); }
};

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

TEST_F(Faults, LeaveNoProgressWindowWhenTheProgramEnds)
{
    FailHalfway();
    ASSERT_TRUE(session.form4.isVisible());
    EXPECT_TRUE(session.form1.close());
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

// ---- where they end the program ----

/// A picture is open that is too wide for a matrix.
class FatalFaults : public Faults {
  protected:
    FatalFaults() { Open("larga.bmp", Varied(1502, 6)); }
};

TEST_F(FatalFaults, EndTheProgramWithAStatusThatIsNotZero)
{
    Apply("Multi Step Orizzontale");
    EXPECT_EQ(
        dialogs.told,
        (std::vector<ShownBox>{
            {BoxIcon::Critical, "Attenzione!",
             "Errore durante il comando «Multi Step Orizzontale»:\nIndice fuori dalla "
             "matrice (ammessi da 0 a 1500): l'immagine è troppo grande o troppo allungata per "
             "questo effetto.\n\nIl programma termina."}}));
    EXPECT_EQ(session.ending, 1);
    EXPECT_FALSE(session.form1.isVisible());
    EXPECT_FALSE(session.form2.isVisible());
    EXPECT_EQ(Conserved(), QStringList());
}

TEST_F(FatalFaults, KeepUnsavedWorkInTheDataFolderAndNameTheFile)
{
    Apply("Specchio");
    const Surface mirrored = Canvas();
    Apply("Multi Step Orizzontale");
    ASSERT_EQ(Conserved().size(), 1);
    const QString path = Data(Conserved()[0]);
    EXPECT_EQ(dialogs.told.back().text,
              "Errore durante il comando «Multi Step Orizzontale»:\nIndice fuori dalla matrice "
              "(ammessi da 0 a 1500): l'immagine è troppo grande o troppo allungata per questo "
              "effetto.\n\nIl lavoro non salvato è stato conservato nel file «" +
                  path + "».\n\nIl programma termina.");
    EXPECT_TRUE(ReadPicture(path.toStdString()).picture == mirrored);
    EXPECT_EQ(session.ending, 1);
}

TEST_F(FatalFaults, LeaveNoFileThatNothingNeeds)
{
    Apply("Multi Step Orizzontale");
    for (const QString& file : {Data("temp.bml"), Data("temp2.bml"), Path("elabor.tmp"),
                                Path("elab.ser"), Data("recupero.txt")})
        EXPECT_FALSE(Exists(file)) << file.toStdString();
}

TEST_F(FatalFaults, LeaveWhatTheNextStartOffersAndNothingElse)
{
    Apply("Specchio");
    Apply("Capovolgi");
    ClickEntry(entry::Undo);
    ASSERT_TRUE(Exists(Data("temp2.bml")));
    Apply("Multi Step Orizzontale");
    ASSERT_EQ(session.ending, 1);
    const std::optional<RecoveryNote> note = ReadRecoveryNote();
    ASSERT_TRUE(note.has_value());
    EXPECT_TRUE(Exists(note->copy));
    for (const QString& file : {Data("temp.bml"), Data("temp2.bml"), Path("elabor.tmp")})
        EXPECT_EQ(Exists(file), file == note->copy) << file.toStdString();
}

TEST_F(Faults, KeepThePictureBeforeTheEffectThatFailedHalfway)
{
    Apply("Specchio");
    FailHalfway(Fatal::All);
    EXPECT_EQ(CanvasLetters(), (Letters{"xba", "fed"}));
    ASSERT_EQ(Conserved().size(), 1);
    EXPECT_EQ(Kept(Data(Conserved()[0])), (Letters{"cba", "fed"}));
    EXPECT_EQ(session.ending, 1);
}

TEST_F(Faults, KeepTheCanvasWhenTheProgramEndsBeforeAnEffectDraws)
{
    Apply("Specchio");
    FailHalfway();
    // The next effect gets no snapshot, so there is only the canvas as the last one left it.
    QFile::remove(Data("temp.bml"));
    QDir().mkpath(Data("temp.bml"));
    Effect spy = Spy();
    spy.fatal = Fatal::All;
    RunInFrame(spy);
    ASSERT_EQ(Conserved().size(), 1);
    EXPECT_EQ(Kept(Data(Conserved()[0])), (Letters{"xba", "fed"}));
}

TEST_F(Faults, SayThatUnsavedWorkCouldNotBeKept)
{
    Apply("Specchio");
    QDir(Data("")).removeRecursively();
    Write(Data("").chopped(1), "un file");
    Effect spy = Spy();
    spy.fatal = Fatal::All;
    RunInFrame(spy);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_THAT(dialogs.told[0].text.toStdString(),
                testing::HasSubstr("Il lavoro non salvato non è stato conservato. "));
    EXPECT_EQ(session.ending, 1);
}

}  // namespace
}  // namespace pixano::test
