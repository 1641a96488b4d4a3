// What surrounds every effect, in its order: history, check mark, snapshot, captions; and the
// random numbers that it finds.
#include "shell/spied_frame.h"
#include "support/reference_random.h"

#include <QMenu>

namespace pixano::test {
namespace {

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

TEST_F(Frame, IsStartedByAnEntryThatOneMoreRowMakes)
{
    const QAction& last = session.form1.Control(SpyEntry - 1);
    EXPECT_EQ(last.text(), "Spia");
    EXPECT_EQ(session.form1.findChild<QMenu*>("Effetti")->actions().back(), &last);
    EXPECT_TRUE(Enabled(SpyEntry));
    session.form2.close();
    EXPECT_FALSE(Enabled(SpyEntry));
    EXPECT_TRUE(Enabled(entry::Inter));
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

TEST_F(Frame, EnablesThePalettesUndoOnlyAfterTheSecondEffect)
{
    Apply("Specchio");
    EXPECT_EQ(PaletteHistory(), (History{false, true, false}));
    Apply("Specchio");
    EXPECT_EQ(PaletteHistory(), (History{true, true, false}));
}

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
