// What surrounds every effect, in its order: history, check mark, snapshot, progress window,
// captions.
#include "canvas/captures.h"
#include "shell/effect_frame.h"
#include "shell/spy_effect.h"
#include "support/program.h"
#include "support/reference_random.h"

#include <QProgressBar>

namespace pixano::test {
namespace {

class Frame : public Program {
  protected:
    Frame() { Open("a.bmp", Drawn({"abc"})); }
    ~Frame() override { SpyAction() = nullptr; }

    void RunSpy(const std::function<void(Work&)>& action, Effect spy = Spy())
    {
        SpyAction() = action;
        RunEffectCommand(session, spy);
    }
    /// The entries that carry the check mark, as `Index`.
    std::vector<int> Checked() const
    {
        std::vector<int> indices;
        for (int index = 1; index <= 62; ++index)
            if (session.form1.Control(index - 1).isChecked()) indices.push_back(index);
        return indices;
    }
    int BarValue() { return session.form4.findChild<QProgressBar*>("ProgressBar1")->value(); }
};

TEST_F(Frame, MarksCountsAndSnapsThePictureBeforeTheEffectDraws)
{
    Effect spy = Spy();
    spy.entry = 32;
    bool ran = false;
    RunSpy(
        [&](Work& w) {
            ran = true;
            EXPECT_EQ(session.doc.NumEffetti, 1);
            EXPECT_EQ(Checked(), (std::vector<int>{32}));
            EXPECT_EQ(session.doc.VoceAttiva, 31);
            EXPECT_EQ(session.doc.Effetto, "Spia");
            EXPECT_EQ(session.doc.FileUndo, "c:\\temp.bml");
            EXPECT_EQ(Kept(Data("temp.bml")), (Letters{"abc"}));
            EXPECT_EQ(session.form10.cursor().shape(), Qt::WaitCursor);
            EXPECT_TRUE(Enabled(entry::Salva));
            EXPECT_TRUE(Enabled(entry::Orig));
            // Not yet: these belong to the end.
            EXPECT_EQ(session.doc.Modificato, 0);
            EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
            EXPECT_FALSE(session.form4.isVisible());
            EXPECT_FALSE(Exists(Path("elab.ser")));
            w.Picture1.PSet(0, 0, ColourOf('x'));
        },
        spy);
    EXPECT_TRUE(ran);
    EXPECT_EQ(CanvasLetters(), (Letters{"xbc"}));
    EXPECT_EQ(PreviewLetters(), (Letters{"xbc"}));
    EXPECT_EQ(CanvasCaption(), "Spia   3x1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (3 x 1) - 100%");
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.form10.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Frame, ReplacesTheSnapshotAtEveryEffect)
{
    Apply("Specchio");
    EXPECT_EQ(Kept(Data("temp.bml")), (Letters{"abc"}));
    Apply("Capovolgi");
    EXPECT_EQ(Kept(Data("temp.bml")), (Letters{"cba"}));
}

TEST_F(Frame, KeepsTheSnapshotFromOtherUsers)
{
    Apply("Specchio");
    using P = QFile::Permission;
    const auto others = P::ReadGroup | P::WriteGroup | P::ReadOther | P::WriteOther;
    EXPECT_FALSE(QFile::permissions(Data("temp.bml")) & others);
    EXPECT_FALSE(QFile::permissions(Data("")) & (others | P::ExeGroup | P::ExeOther));
}

TEST_F(Frame, MovesTheCheckMarkFromEntryToEntry)
{
    ClickEntry(31);
    EXPECT_EQ(Checked(), (std::vector<int>{31}));
    EXPECT_EQ(session.doc.VoceAttiva, 30);
    ClickEntry(32);
    EXPECT_EQ(Checked(), (std::vector<int>{32}));
    EXPECT_EQ(session.doc.VoceAttiva, 31);
    ClickEntry(32);
    EXPECT_EQ(Checked(), (std::vector<int>{32}));
}

TEST_F(Frame, LeavesTheCheckMarkToEffectsWithoutAnEntry)
{
    ClickEntry(31);
    Apply("Capovolgi a Specchio");
    EXPECT_EQ(Checked(), (std::vector<int>{31}));
    EXPECT_EQ(session.doc.VoceAttiva, 30);
    EXPECT_EQ(CanvasCaption(), "Capovolgi a Specchio   3x1");
}

TEST_F(Frame, ChecksNothingBeforeTheFirstEffectWithAnEntry)
{
    Apply("Capovolgi a Specchio");
    EXPECT_EQ(Checked(), (std::vector<int>{}));
    EXPECT_EQ(session.doc.VoceAttiva, 0);
}

TEST_F(Frame, GivesTheEntriesWithoutBehaviourNone)
{
    const QString caption = CanvasCaption();
    ClickEntry(28);
    ClickEntry(29);
    EXPECT_EQ(CanvasCaption(), caption);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(Checked(), (std::vector<int>{}));
}

TEST_F(Frame, StartsTheEffectOfEveryEntryThatHasOne)
{
    // One picture large enough for all of them.
    Open("b.bmp", Varied(64, 48));
    for (const Effect& effect : Catalogue()) {
        if (effect.entry == 0) continue;
        ClickEntry(effect.entry);
        EXPECT_EQ(session.doc.Effetto.toStdString(), effect.name);
        EXPECT_EQ(Checked(), (std::vector<int>{effect.entry})) << effect.name;
        EXPECT_FALSE(session.form4.isVisible()) << effect.name;
        EXPECT_FALSE(Exists(Path("elab.ser"))) << effect.name;
    }
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Frame, LeavesTheCaptionToMiniFotoRndAsItWas)
{
    Open("b.bmp", Varied(64, 48));
    Apply("Specchio");
    Apply("Mini Foto Rnd");
    EXPECT_EQ(session.doc.Effetto, "Mini Foto Rnd");
    EXPECT_EQ(CanvasCaption(), "Specchio   64x48");
    EXPECT_EQ(session.doc.Modificato, 1);
}

// ---- the progress window ----

TEST_F(Frame, ShowsTheProgressWindowCaptionedWithTheEffect)
{
    RunSpy([&](Work& w) {
        w.ShowProgress();
        EXPECT_TRUE(session.form4.isVisible());
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia");
        EXPECT_EQ(BarValue(), 0);
    });
    EXPECT_FALSE(session.form4.isVisible());
}

TEST_F(Frame, TellsTheProgressInQuarterPercents)
{
    Open("b.bmp", Varied(2, 3));
    RunSpy([&](Work& w) {
        w.ShowProgress();
        const std::vector<std::pair<int, QString>> expected{
            {0, "Elab. Spia  (0%)"},     {133, "Elab. Spia  (33%)"},  {266, "Elab. Spia  (66%)"},
            {400, "Elab. Spia  (100%)"}, {400, "Elab. Spia  (100%)"},
        };
        for (int n = 0; n <= 4; ++n) {
            w.Avanzamento(n);
            EXPECT_EQ(BarValue(), expected[static_cast<std::size_t>(n)].first) << n;
            EXPECT_EQ(session.form4.windowTitle(), expected[static_cast<std::size_t>(n)].second);
        }
    });
}

TEST_F(Frame, OverwritesACaptionThatChangedBetweenTwoSteps)
{
    RunSpy([&](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
        session.form4.setWindowTitle("altro");
        w.Avanzamento(1);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia  (100%)");
    });
}

TEST_F(Frame, TakesEachEffectsOwnCaptionAfresh)
{
    RunSpy([](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
    });
    Effect other = Spy();
    other.name = "Altra";
    RunSpy(
        [&](Work& w) {
            w.ShowProgress();
            w.Avanzamento(0);
            EXPECT_EQ(session.form4.windowTitle(), "Elab. Altra  (0%)");
        },
        other);
}

TEST_F(Frame, EnablesThePalettesUndoOnlyAfterTheSecondEffect)
{
    Apply("Specchio");
    EXPECT_EQ(PaletteHistory(), (History{false, true, false}));
    Apply("Specchio");
    EXPECT_EQ(PaletteHistory(), (History{true, true, false}));
}

// ---- the order of the last steps ----

/// Looks at `Modificato` and the canvas caption in the moment when the preview is refreshed: its
/// copy cannot be written then, and the frame ends there.
class LastSteps : public Frame {
  protected:
    void RunUntilUnload(Closing closing)
    {
        Effect spy = Spy();
        spy.closing = closing;
        QDir::current().mkdir("elabor.tmp");
        RunSpy([](Work& w) { w.ShowProgress(); }, spy);
        EXPECT_EQ(dialogs.told.size(), 1U);
        EXPECT_FALSE(session.form4.isVisible());
        EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    }
};

TEST_F(LastSteps, MarkTheChangeAfterTheProgressWindowHasGone)
{
    RunUntilUnload(Closing::UnloadCaptionModified);
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(LastSteps, MarkTheChangeFirstWhereTheEffectSaysSo)
{
    RunUntilUnload(Closing::ModifiedUnloadCaption);
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(LastSteps, LeaveTheCaptionOutWhereTheEffectSaysSo)
{
    Effect spy = Spy();
    spy.closing = Closing::ModifiedUnload;
    RunSpy([](Work&) {}, spy);
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_EQ(session.doc.Modificato, 1);
}

// ---- random numbers: the timer's first reading, 1, seeded the program ----

class Reseeding : public Frame, public testing::WithParamInterface<Reseed> {
  protected:
    Reseeding() { second_.Randomize(); }
    ReferenceRandom first_{1};
    ReferenceRandom second_{1};
};

TEST_F(Reseeding, LeavesTheNumbersAloneWhereTheEffectDoesNotAsk)
{
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), first_.Rnd()); });
}

TEST_P(Reseeding, TakesTheNextReadingOnceBeforeTheEffect)
{
    Effect spy = Spy();
    spy.reseed = GetParam();
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), second_.Rnd()); }, spy);
    second_.Randomize();
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), second_.Rnd()); }, spy);
}

TEST_P(Reseeding, ComesBeforeTheSnapshot)
{
    QDir().mkpath(Data("temp.bml"));
    Effect spy = Spy();
    spy.reseed = GetParam();
    RunSpy([](Work&) { FAIL() << "there is no snapshot"; }, spy);
    EXPECT_EQ(session.work.Rnd(), second_.Rnd());
}

INSTANTIATE_TEST_SUITE_P(Places, Reseeding,
                         testing::Values(Reseed::AfterAbil, Reseed::BeforeEffect),
                         [](const auto& tested) {
                             return tested.param == Reseed::AfterAbil ? "AfterAbil"
                                                                      : "BeforeEffect";
                         });

}  // namespace
}  // namespace pixano::test
