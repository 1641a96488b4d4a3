// What stays true when a step of a command fails: the picture counts, the next start finds it, and
// the user sees what is.
#include "document/recovery.h"
#include "document/recovery_note.h"
#include "shell/spy_effect.h"
#include "support/hindrances.h"
#include "support/program.h"

namespace pixano::test {
namespace {

class WhateverFails : public Program {
  protected:
    WhateverFails() { Open("a.bmp", Varied(64, 48)); }
    ~WhateverFails() override { SpyAction() = nullptr; }

    /// The effect has made its picture; only the preview's copy could not be written. The box says
    /// so, `why`, that nothing is lost, and what helps.
    void ExpectItCounts(const char* effect, const QString& why, const QString& advice)
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
        EXPECT_EQ(
            dialogs.told[0],
            (ShownBox{BoxIcon::Exclamation, "Attenzione!",
                      "L'anteprima mostra l'immagine com'è ora, ma la sua copia di lavoro non è "
                      "stata scritta. Impossibile salvare «" +
                          why +
                          ".\n\nLe modifiche sono comunque al sicuro: ce n'è una copia nel file «" +
                          Data("elabor.tmp") + "»." + advice}));
    }
    static inline const QString Advice = "\n\nPixano tiene i suoi file di lavoro nella cartella da "
                                         "cui è avviato: conviene avviarlo da "
                                         "una in cui può scrivere, o dal menu del desktop.";
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
    ExpectItCounts("Specchio", Path("elabor.tmp") + "»: è una cartella", "");
    ExpectItIsOffered();
}

TEST_F(WhateverFails, AFinishedEffectCountsInAFolderThatCannotBeWritten)
{
    const OrdinaryUser user{Root().toStdString()};
    const Locked locked(QDir::currentPath().toStdString());
    Apply("Rotazione +90°");
    ExpectItCounts("Rotazione +90°",
                   Path("elabor.tmp") + "»: manca il permesso di scrivere nella cartella", Advice);
    ExpectItIsOffered();
}

TEST_F(WhateverFails, AnEffectThatNeedsTheFolderSaysWhatHelpsInAFolderThatCannotBeWritten)
{
    const OrdinaryUser user{Root().toStdString()};
    const Locked locked(QDir::currentPath().toStdString());
    Apply("Specchio");
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(dialogs.told[0].text,
              "Errore durante il comando «Specchio»:\nImpossibile scrivere «" + Path("elab.ser") +
                  "»: manca il permesso di scrivere nella cartella." + Advice);
}

TEST_F(WhateverFails, AFinishedEffectCountsInAFolderThatHasVanished)
{
    QDir(QDir::currentPath()).removeRecursively();
    Apply("Rotazione +90°");
    ExpectItCounts("Rotazione +90°", "./elabor.tmp»: la cartella non esiste", Advice);
    ExpectItIsOffered();
}

TEST_F(WhateverFails, ACanvasWithoutAnyCopyIsToldOfAfterEveryEffect)
{
    QDir().mkdir("elabor.tmp");
    QDir().mkpath(Data("elabor.tmp"));
    const QString warning =
        "Dell'immagine modificata non c'è nessuna copia su disco: conviene salvarla.";
    for (int i = 0; i < 2; ++i) {
        Apply("Specchio");
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_TRUE(dialogs.told[0].text.endsWith(warning)) << dialogs.told[0];
        EXPECT_EQ(dialogs.told[0].text.contains("scritta. Impossibile"), i == 0)
            << "why, it was told before";
        dialogs.told.clear();
    }
}

TEST_F(WhateverFails, ACopyThatNoNoteNamesIsNotToldToBeSafe)
{
    QDir().mkdir("elabor.tmp");
    QDir().mkpath(Data("recupero.txt/dentro"));
    Apply("Specchio");
    ASSERT_EQ(dialogs.told.size(), 1U);
    const std::string told = dialogs.told[0].text.toStdString();
    EXPECT_THAT(told, testing::EndsWith("Una copia dell'immagine modificata è nel file «" +
                                        Data("elabor.tmp").toStdString() + "»."));
    EXPECT_THAT(told, testing::Not(testing::HasSubstr("al sicuro")));
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
