// What stays true when a step of a command fails: the picture counts, the next start finds it, and
// the user sees what is.
#include "document/recovery.h"
#include "document/recovery_note.h"
#include "shell/spy_effect.h"
#include "support/hindrances.h"
#include "support/program.h"

namespace pixano::test {
namespace {

using testing::StartsWith;

class WhateverFails : public Program {
  protected:
    WhateverFails() { Open("a.bmp", Varied(64, 48)); }
    ~WhateverFails() override { SpyAction() = nullptr; }

    /// The effect has made its picture; only the preview's copy could not be written.
    void ExpectItCounts(const char* effect)
    {
        EffectRun run(Varied(64, 48));
        EXPECT_EQ(Canvas(), run.Apply(*FindEffect(effect)).work.Picture1);
        EXPECT_EQ(session.form9.Image1().Picture(), Canvas());
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_EQ(CanvasCaption(), QString(effect) + "   64x48");
        EXPECT_EQ(PaletteHistory(), MenuHistory());
        EXPECT_EQ(session.form10.cursor().shape(), Qt::ArrowCursor);
        EXPECT_FALSE(session.form4.isVisible());
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_THAT(dialogs.told[0].text.toStdString(), StartsWith("Errore durante il comando"));
    }
    /// A copy lies in the data folder, and the next start brings it back.
    void ExpectItIsOffered()
    {
        const std::optional<RecoveryNote> note = ReadRecoveryNote();
        ASSERT_TRUE(note);
        EXPECT_EQ(note->copy, Data("elabor.tmp"));
        Desk next;
        next.dialogs.answers.push_back(true);
        RunCommand(next.session, "Avvio", Fatal::None, [&] { OfferRecovery(next.session); });
        EXPECT_EQ(next.dialogs.asked.size(), 1U);
        EXPECT_EQ(next.Canvas(), Canvas());
        EXPECT_EQ(next.session.doc.Modificato, 1);
    }
};

TEST_F(WhateverFails, AFinishedEffectCountsThoughAFolderIsInThePreviewsPlace)
{
    QDir().mkdir("elabor.tmp");
    Apply("Specchio");
    ExpectItCounts("Specchio");
    ExpectItIsOffered();
}

TEST_F(WhateverFails, AFinishedEffectCountsInAFolderThatCannotBeWritten)
{
    const OrdinaryUser user{Root().toStdString()};
    const Locked locked(QDir::currentPath().toStdString());
    Apply("Rotazione +90°");
    ExpectItCounts("Rotazione +90°");
    ExpectItIsOffered();
}

TEST_F(WhateverFails, AFinishedEffectCountsInAFolderThatHasVanished)
{
    QDir(QDir::currentPath()).removeRecursively();
    Apply("Rotazione +90°");
    ExpectItCounts("Rotazione +90°");
    ExpectItIsOffered();
}

TEST_F(WhateverFails, AFullDiskEndsOnlyTheCommandInTheEffectsThatMayEndTheProgram)
{
    int count = 0;
    for (const Effect& effect : Effects) {
        if (effect.fatal == Fatal::None) continue;
        SCOPED_TRACE(effect.name);
        ++count;
        // Nothing fits; the snapshot fits, nothing larger.
        for (const rlim_t bytes : {rlim_t(0), rlim_t(64 * 48 * 3 + 54)}) {
            dialogs.told.clear();
            const FileSizeLimit disk(bytes);
            RunInFrame(effect);
            EXPECT_FALSE(session.ending);
            if (bytes == 0) {
                EXPECT_EQ(dialogs.told.size(), 1U);
            }
        }
    }
    EXPECT_EQ(count, 8);
}

/// Looks at the progress window while it comes and goes.
class ProgressSeen : public QObject {
  public:
    explicit ProgressSeen(Form4& window) : window_(window) { window.installEventFilter(this); }

    float atShow = -1;
    float atHide = -1;
    QStringList titles;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Show) atShow = window_.Bar();
        if (event->type() == QEvent::Hide) atHide = window_.Bar();
        if (event->type() == QEvent::WindowTitleChange) titles += window_.windowTitle();
        return false;
    }

  private:
    Form4& window_;
};

TEST_F(WhateverFails, IngrSinistroShowsTheBarOfItsCaptureAndTheNextWindowIsNew)
{
    const ProgressSeen seen(session.form4);
    Apply("Ingr. Sinistro");
    EXPECT_EQ(seen.atShow, 400);
    EXPECT_EQ(seen.atHide, 400);
    EXPECT_TRUE(seen.titles.contains("Elab. Ingr. Sinistro"));
    EXPECT_EQ(session.form4.Bar(), 0);
    EXPECT_EQ(session.form4.windowTitle(), "");
    Apply("Specchio");
    EXPECT_EQ(seen.atShow, 0);
}

TEST_F(WhateverFails, NoTitleShowsTwoPercentagesAfterAFaultInACapture)
{
    const ProgressSeen seen(session.form4);
    Apply("Specchio");
    {
        // The snapshot fits; the pixels as text do not.
        const FileSizeLimit disk(64 * 48 * 3 + 54);
        Apply("Ingr. Sinistro");
    }
    EXPECT_EQ(dialogs.told.size(), 1U);
    Apply("Artistico 1");
    for (const QString& title : seen.titles)
        EXPECT_LE(title.count('('), 1) << title.toStdString();
}

TEST_F(WhateverFails, AWindowThatAFaultLeftOpenKeepsItsTitleThroughTheNextEffect)
{
    const auto begin = [](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
    };
    Effect other = Spy();
    other.name = "Altra";
    SpyAction() = [&](Work& w) {
        begin(w);
        throw Fault(FaultKind::InputPastEnd);
    };
    RunInFrame(Spy());
    SpyAction() = [&](Work& w) {
        begin(w);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia  (0%)");
    };
    RunInFrame(other);
    SpyAction() = [&](Work& w) {
        begin(w);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Altra  (0%)");
    };
    RunInFrame(other);
}

/// Whether a widget has painted itself since it was last asked.
class Painted : public QObject {
  public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    bool Since() { return std::exchange(painted_, false); }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

  private:
    bool painted_ = false;
};

TEST_F(WhateverFails, TheCanvasIsPaintedBeforeTheBoxOpens)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&session.form2));
    Painted canvas(session.form2.Picture1());
    bool painted = false;
    dialogs.meanwhile = [&] { painted = canvas.Since(); };
    SpyAction() = [&](Work& w) {
        w.Picture1.PSet(0, 0, 0);
        canvas.Since();
        throw Fault(FaultKind::InputPastEnd);
    };
    RunInFrame(Spy());
    EXPECT_TRUE(painted) << "half drawn";
    QDir().mkpath(Data("temp2.bml"));
    Apply("Specchio");
    Apply("Capovolgi");
    painted = false;
    canvas.Since();
    ClickEntry(entry::Undo);
    EXPECT_EQ(dialogs.told.size(), 2U);
    EXPECT_TRUE(painted) << "a step back, of which the disk is told";
}

}  // namespace
}  // namespace pixano::test
