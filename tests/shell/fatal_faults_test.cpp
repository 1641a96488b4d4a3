// Run-time errors that end the program: what is told, and what is kept of unsaved work.
#include "document/recovery_note.h"
#include "shell/failing_halfway.h"

#include <QClipboard>

#include <array>

namespace pixano::test {
namespace {

constexpr const char* NoRoomInMatrix =
    "Errore durante il comando «Multi Step Orizzontale»:\nIndice fuori dalla matrice (ammessi da "
    "0 a 1500): l'immagine è troppo grande, troppo piccola o troppo allungata per questo effetto.";

/// A picture is open that is too wide for a matrix.
class FatalFaults : public Faults {
  protected:
    FatalFaults() { Open("larga.bmp", Varied(1502, 6)); }
};

TEST_F(FatalFaults, EndTheProgramWithAStatusThatIsNotZero)
{
    Apply("Multi Step Orizzontale");
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Critical, "Attenzione!",
                                      NoRoomInMatrix + QString("\n\nIl programma termina.")}}));
    EXPECT_EQ(session.ending, 1);
    EXPECT_FALSE(session.form1.isVisible());
    EXPECT_FALSE(session.form2.isVisible());
    EXPECT_EQ(Conserved(), QStringList());
}

/// A control of an effect that finds no room in the matrix, and whether that ends the program.
struct ControlOfEffect {
    int entry;           ///< `Index`; 0 = none
    const char* button;  ///< "" = none
    bool ends;
};

class ControlsOfFatalEffects : public Faults, public testing::WithParamInterface<ControlOfEffect> {
  protected:
    // Too wide even where only every fifth column is taken.
    ControlsOfFatalEffects() { Open("larga.bmp", Varied(7600, 6)); }
};

constexpr auto ControlsOfEffects = std::to_array<ControlOfEffect>({
    {37, "", true},
    {39, "", true},
    {40, "", true},
    {41, "", true},
    {44, "", false},
    {0, "SSCommand1", true},
    {0, "SSCommand2", true},
    {0, "SSCommand18", true},
    {0, "SSCommand19", true},
    {0, "SSCommand20", true},
    {0, "SSCommand21", true},
    {0, "SSCommand24", false},
    {0, "SSCommand25", false},
});

constexpr auto NameOfControl = [](const auto& suite) {
    const ControlOfEffect& control = suite.param;
    return control.button + (control.entry == 0 ? "" : "Entry" + std::to_string(control.entry));
};

INSTANTIATE_TEST_SUITE_P(MenuAndPalette, ControlsOfFatalEffects,
                         testing::ValuesIn(ControlsOfEffects), NameOfControl);

TEST_P(ControlsOfFatalEffects, EndTheProgramWhereTheEffectDoes)
{
    if (GetParam().entry != 0)
        ClickEntry(GetParam().entry);
    else
        Button(GetParam().button).click();
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told[0].text.contains("Indice fuori dalla matrice"));
    EXPECT_EQ(dialogs.told[0].text.endsWith("\n\nIl programma termina."), GetParam().ends);
    EXPECT_EQ(session.ending.has_value(), GetParam().ends);
}

TEST_F(FatalFaults, KeepUnsavedWorkInTheDataFolderAndNameTheFile)
{
    Apply("Specchio");
    const Surface mirrored = Canvas();
    Apply("Multi Step Orizzontale");
    ASSERT_EQ(Conserved().size(), 1);
    const QString path = Data(Conserved()[0]);
    EXPECT_EQ(dialogs.told.back().text,
              NoRoomInMatrix + QString("\n\nIl lavoro non salvato è stato conservato nel file «") +
                  path + "».\n\nIl programma termina.");
    EXPECT_TRUE(ReadPicture(path.toStdString()).picture == mirrored);
    EXPECT_EQ(session.ending, 1);
}

TEST_F(FatalFaults, LeaveNoFileThatNothingNeeds)
{
    // From a time when the working folder could not be written.
    QDir().mkpath(Data(""));
    Write(Data("elabor.tmp"), "a copy of the canvas");
    Apply("Multi Step Orizzontale");
    for (const QString& file : {Data("temp.bml"), Data("temp2.bml"), Data("elabor.tmp"),
                                Path("elabor.tmp"), Path("elab.ser"), Data("recupero.txt")})
        EXPECT_FALSE(Exists(file)) << file.toStdString();
}

TEST_F(FatalFaults, LeaveEveryFileWhereTheNoteCannotBeRead)
{
    QDir().mkpath(Data("recupero.txt"));
    Write(Data("temp2.bml"), "what is left of somebody's work");
    Apply("Multi Step Orizzontale");
    EXPECT_EQ(session.ending, 1);
    EXPECT_TRUE(Exists(Data("temp.bml")));
    EXPECT_TRUE(Exists(Data("temp2.bml")));
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

// The next start offers the changes, and "Originale" needs the picture that they were made to.
TEST_F(Faults, KeepThePastedPictureThatUnsavedWorkBeganWith)
{
    QImage copied(3, 2, QImage::Format_RGB32);
    copied.fill(Qt::red);
    QApplication::clipboard()->setImage(copied);
    emit session.form1.Pasted();
    QApplication::clipboard()->clear();
    Apply("Specchio");
    const QString pasted = session.doc.FileAperto;
    FailHalfway(Fatal::All);
    EXPECT_EQ(session.ending, 1);
    EXPECT_TRUE(Exists(pasted));
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
