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
    Frame() : Program(ControlsWithSpy()) { Open("a.bmp", Drawn({"abc"})); }
    ~Frame() override { SpyAction() = nullptr; }

    void RunSpy(const std::function<void(Work&)>& action, const Effect& spy = Spy())
    {
        SpyAction() = action;
        RunInFrame(spy);
    }
    /// The entries that carry the check mark, as `Index`.
    std::vector<int> Checked() const
    {
        std::vector<int> indices;
        for (int index = 1; index <= SpyEntry; ++index)
            if (session.form1.Control(index - 1).isChecked()) indices.push_back(index);
        return indices;
    }
    int BarValue() { return session.form4.findChild<QProgressBar*>("ProgressBar1")->value(); }
};

TEST_F(Frame, MarksCountsAndSnapsThePictureBeforeTheEffectDraws)
{
    bool ran = false;
    SpyAction() = [&](Work& w) {
        ran = true;
        EXPECT_EQ(session.doc.NumEffetti, 1);
        EXPECT_EQ(Checked(), (std::vector<int>{SpyEntry}));
        EXPECT_EQ(session.doc.VoceAttiva, SpyEntry - 1);
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
    };
    ClickEntry(SpyEntry);
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
    for (const auto& [index, effect] : EffectEntries) {
        ClickEntry(index);
        EXPECT_EQ(session.doc.Effetto, effect);
        EXPECT_EQ(Checked(), (std::vector<int>{index})) << effect;
        EXPECT_FALSE(session.form4.isVisible()) << effect;
        EXPECT_FALSE(Exists(Path("elab.ser"))) << effect;
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

/// Looks at the document in the moment when the progress window goes.
class LastSteps : public QObject, public Frame, public testing::WithParamInterface<const Effect*> {
  protected:
    LastSteps() { session.form4.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Hide) return false;
        atUnload = session.doc.Modificato;
        pixelsAtUnload = Exists(Path("elab.ser"));
        captionAtUnload = CanvasCaption();
        return false;
    }

    int atUnload = -1;
    bool pixelsAtUnload = true;
    QString captionAtUnload;
};

TEST_P(LastSteps, MarkTheChangeBeforeOrAfterTheProgressWindowGoes)
{
    static const std::set<std::string_view> before{"Rifl. Vert. Sinistro",
                                                   "Rifl. Vert. Destro",
                                                   "Rifl.o Oriz. Superiore",
                                                   "Rifl. Oriz. Inferiore",
                                                   "Ingr. Top",
                                                   "Ingr. Bottom",
                                                   "Ingr. Sinistro",
                                                   "Ingr. Destro",
                                                   "Ingr. Top Sinistro",
                                                   "Ingr. Top Destro",
                                                   "Ingr. Bottom Sinistro",
                                                   "Ingr. Bottom Destro",
                                                   "Ingr. Centro",
                                                   "Multifoto",
                                                   "Mini Foto Rnd",
                                                   "Mix Verticale",
                                                   "Mix Orizzontale",
                                                   "Mix Multifoto"};
    const Effect& effect = *GetParam();
    Open("b.bmp", Varied(64, 48));
    session.work.Valori.fill(2500);
    RunInFrame(effect);
    EXPECT_EQ(atUnload, before.contains(effect.name) ? 1 : 0);
    EXPECT_FALSE(pixelsAtUnload);
    EXPECT_EQ(captionAtUnload, "b.bmp   64x48");
    EXPECT_EQ(session.doc.Modificato, 1);
    const std::string caption = effect.name == "Mini Foto Rnd" ? "b.bmp" : std::string(effect.name);
    EXPECT_EQ(CanvasCaption().toStdString(), caption + "   64x48");
}

INSTANTIATE_TEST_SUITE_P(Catalogue, LastSteps, testing::ValuesIn([] {
                             std::vector<const Effect*> effects;
                             for (const Effect& effect : Effects)
                                 effects.push_back(&effect);
                             return effects;
                         }()));

// ---- random numbers: the timer's first reading, 1, seeded the program ----

class Reseeding : public Frame {
  protected:
    Reseeding()
    {
        second_.Randomize();
        reseeding_.reseeds = true;
    }
    ReferenceRandom first_{1};
    ReferenceRandom second_{1};
    Effect reseeding_ = Spy();
};

TEST_F(Reseeding, LeavesTheNumbersAloneWhereTheEffectDoesNotAsk)
{
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), first_.Rnd()); });
}

TEST_F(Reseeding, TakesTheNextReadingOnceBeforeTheEffect)
{
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), second_.Rnd()); }, reseeding_);
    second_.Randomize();
    RunSpy([&](Work& w) { EXPECT_EQ(w.Rnd(), second_.Rnd()); }, reseeding_);
}

TEST_F(Reseeding, ComesBeforeTheSnapshot)
{
    QDir().mkpath(Data("temp.bml"));
    RunSpy([](Work&) { FAIL() << "there is no snapshot"; }, reseeding_);
    EXPECT_EQ(session.work.Rnd(), second_.Rnd());
}

}  // namespace
}  // namespace pixano::test
