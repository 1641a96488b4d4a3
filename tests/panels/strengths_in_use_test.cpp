// The slider window in the running program: the strengths in memory and in "valori.tip".
#include "panels/asked.h"
#include "support/program.h"
#include "support/values.h"

#include <QLabel>
#include <QSlider>

namespace pixano::test {
namespace {

/// The program lies in one folder and runs in another.
class StrengthsInUse : public Program {
  protected:
    StrengthsInUse()
    {
        QDir(Root()).mkdir("program");
        session.programFolder = Root() + "/program";
        Ship("1000\r\n2000\r\n3000\r\n4000\r\n4500\r\n");
        Open("a.bmp", Varied(9, 7));
    }

    /// Puts a "valori.tip" beside the program.
    void Ship(const std::string& content) { Write(Root() + "/program/valori.tip", content); }
    /// Presses "Vetro" and does something in the slider window.
    void PressVetro(const std::function<void(QWidget&)>& act) { Ask("SSCommand6", act); }
    void Ask(const char* button, const std::function<void(QWidget&)>& act)
    {
        WhileAsked(act);
        ClickButton(session.form10, button);
    }

    static QSlider& SliderIn(const QWidget& window)
    {
        return *window.findChild<QSlider*>("Slider1");
    }
    static std::string LabelIn(const QWidget& window)
    {
        return window.findChild<QLabel*>("Label1")->text().toStdString();
    }
    static void Confirm(const QWidget& window) { ClickButton(window, "Command1"); }
    static void Cancel(const QWidget& window) { ClickButton(window, "Command2"); }

    /// The opened picture after "Vetro" with that strength.
    static Values VetroOf(double strength)
    {
        EffectRun run(Varied(9, 7));
        run.work.IndValore = 3;
        run.work.Valori.at(3) = strength;
        run.Apply(*FindEffect("Vetro"));
        return ValuesOf(run.work.Picture1);
    }
    bool CanvasIs(const Values& values) const { return ValuesOf(Canvas()) == values; }
};

struct StrengthButton {
    const char* button;
    const char* caption;
    int selector;
    const char* shown;
};

TEST_F(StrengthsInUse, EachButtonAsksForItsOwn)
{
    constexpr std::array Buttons{
        StrengthButton{"SSCommand4", "Negativo Artistico", 1, "1000"},
        StrengthButton{"SSCommand5", "Colorazione", 2, "2000"},
        StrengthButton{"SSCommand6", "Vetro", 3, "3000"},
        StrengthButton{"SSCommand22", "Foto Color Rnd", 4, "4000"},
        StrengthButton{"SSCommand23", "Forbici", 5, "4500"},
    };
    for (const StrengthButton& expected : Buttons)
        Ask(expected.button, [&](QWidget& window) {
            EXPECT_EQ(window.objectName(), "Form11");
            EXPECT_TRUE(window.isModal());
            EXPECT_EQ(window.windowTitle(), expected.caption);
            EXPECT_EQ(LabelIn(window), expected.shown);
            EXPECT_EQ(session.work.IndValore, expected.selector);
        });
}

TEST_F(StrengthsInUse, OpenBelowThePalettesTitle)
{
    session.form10.move(200, 30);
    const QPoint palette = session.form10.pos();
    PressVetro([&](QWidget& window) { EXPECT_EQ(window.pos(), palette + QPoint(9, 40)); });
}

TEST_F(StrengthsInUse, AnnullaRunsNoEffectAndWritesNothing)
{
    PressVetro([](QWidget& window) {
        SliderIn(window).setValue(7000);
        Cancel(window);
    });
    EXPECT_TRUE(CanvasIs(ValuesOf(Varied(9, 7))));
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(session.doc.Confermato, 0);
    EXPECT_FALSE(Exists("valori.tip"));
    EXPECT_EQ(CanvasCaption(), "a.bmp   9x7");
}

TEST_F(StrengthsInUse, AnnullaKeepsTheLastValueInMemoryUntilTheNextReading)
{
    PressVetro([](QWidget& window) {
        SliderIn(window).setValue(7000);
        Cancel(window);
    });
    EXPECT_EQ(session.work.Valori, (Strengths{0, 1000, 2000, 7000, 4000, 4500}));
    Ask("SSCommand4", Cancel);
    EXPECT_EQ(session.work.Valori, (Strengths{0, 1000, 2000, 3000, 4000, 4500}));
}

TEST_F(StrengthsInUse, ClosingTheWindowIsLikeAnnulla)
{
    PressVetro([](QWidget& window) { window.close(); });
    PressVetro([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_TRUE(CanvasIs(ValuesOf(Varied(9, 7))));
    EXPECT_EQ(session.doc.NumEffetti, 0);
}

TEST_F(StrengthsInUse, OkRunsTheEffectWithTheSlidersValue)
{
    PressVetro([](QWidget& window) {
        SliderIn(window).setValue(9900);
        Confirm(window);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(CanvasIs(VetroOf(9900)));
    EXPECT_NE(VetroOf(9900), VetroOf(3000));
    EXPECT_EQ(CanvasCaption(), "Vetro   9x7");
    EXPECT_EQ(session.doc.Confermato, 0);
}

TEST_F(StrengthsInUse, OkWritesAllFiveInTheCurrentFolder)
{
    PressVetro([](QWidget& window) {
        SliderIn(window).setValue(7500);
        Confirm(window);
    });
    EXPECT_EQ(Bytes("valori.tip"), "1000\r\n2000\r\n7500\r\n4000\r\n4500\r\n");
    // The program's own folder keeps what it was shipped with, and is what is read next time.
    PressVetro([](QWidget& window) { EXPECT_EQ(LabelIn(window), "3000"); });
}

TEST_F(StrengthsInUse, OkLeavesAFractionAlone)
{
    Ship("1\r\n2\r\n0.25\r\n4\r\n5\r\n");
    PressVetro([](QWidget& window) {
        EXPECT_EQ(LabelIn(window), "0.25");
        Confirm(window);
    });
    EXPECT_EQ(Bytes("valori.tip"), "1\r\n2\r\n0.25\r\n4\r\n5\r\n");
    EXPECT_TRUE(CanvasIs(VetroOf(0.25)));
}

TEST_F(StrengthsInUse, OkThenAnnullaRunsTheEffectOnce)
{
    PressVetro(Confirm);
    PressVetro(Cancel);
    EXPECT_EQ(session.doc.NumEffetti, 1);
}

TEST_F(StrengthsInUse, ResizingReadsThemAgain)
{
    PressVetro([this](QWidget& window) {
        SliderIn(window).setValue(7000);
        Ship("1\r\n2\r\n333\r\n4\r\n5\r\n");
        window.resize(window.width() + 50, window.height() + 10);
        EXPECT_EQ(LabelIn(window), "333");
        EXPECT_EQ(SliderIn(window).value(), 333);
        EXPECT_EQ(session.work.Valori, (Strengths{0, 1, 2, 333, 4, 5}));
    });
}

TEST_F(StrengthsInUse, TypedAndConfirmedWithoutTheMouse)
{
    PressVetro([](QWidget& window) {
        QTest::keyClicks(&SliderIn(window), "9900");
        QTest::keyClick(&SliderIn(window), Qt::Key_Return);
    });
    EXPECT_TRUE(CanvasIs(VetroOf(9900)));
}

TEST_F(StrengthsInUse, OutsideTheRangeBecomeTheEnd)
{
    Ship("1\r\n2\r\n12010\r\n4\r\n-5\r\n");
    PressVetro([](QWidget& window) {
        EXPECT_EQ(LabelIn(window), "10000");
        Confirm(window);
    });
    EXPECT_TRUE(CanvasIs(VetroOf(10000)));
    EXPECT_TRUE(dialogs.told.empty());
    Ask("SSCommand23", [](QWidget& window) { EXPECT_EQ(LabelIn(window), "0"); });
    EXPECT_EQ(session.work.Valori.at(5), 0);
    EXPECT_EQ(session.work.Valori.at(3), 12010) << "only the strength in use is changed";
}

TEST_F(StrengthsInUse, WithoutANumberAreNothing)
{
    Ship("uno\r\ndue\r\ntre\r\nquattro\r\ncinque\r\n");
    PressVetro([](QWidget& window) { EXPECT_EQ(LabelIn(window), "0"); });
    EXPECT_EQ(session.work.Valori, Strengths{});
}

TEST_F(StrengthsInUse, ThatCannotBeWrittenHoldForThisTime)
{
    QDir().mkdir("valori.tip");
    PressVetro(Confirm);
    EXPECT_EQ(session.doc.Effetto, "Vetro");
    EXPECT_EQ(session.doc.Modificato, 1);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(dialogs.told.front().text, "Impossibile salvare «" + Path("valori.tip") +
                                             "»: è una cartella. La forza vale per questa volta, "
                                             "ma non sarà ricordata.");
    PressVetro(Cancel);
    EXPECT_EQ(session.doc.NumEffetti, 1) << "the confirmation must not count again";
}

// ---- a file that is missing or too short ends the program ----

class UnreadableStrengths : public StrengthsInUse {
  protected:
    /// Presses "Vetro"; the window closes by itself.
    void PressVetroInVain() { ClickButton(session.form10, "SSCommand6"); }

    /// The only bitmap that was kept in the data folder.
    QString KeptWork() const
    {
        const QStringList kept = QDir(Data("")).entryList({"lavoro-*.bmp"});
        return kept.size() == 1 ? Data(kept.front()) : QString();
    }
};

TEST_F(UnreadableStrengths, EndTheProgramWithItsMessage)
{
    QFile::remove(Root() + "/program/valori.tip");
    PressVetroInVain();
    ASSERT_EQ(dialogs.told.size(), 1U);
    const ShownBox& box = dialogs.told.front();
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_EQ(box.title, "Attenzione!");
    EXPECT_TRUE(box.text.contains("«Vetro»")) << box;
    EXPECT_TRUE(box.text.contains(Root() + "/program/valori.tip")) << box;
    EXPECT_TRUE(box.text.endsWith("Il programma termina.")) << box;
    EXPECT_EQ(session.ending, 1);
    EXPECT_TRUE(KeptWork().isEmpty()) << "nothing was unsaved";
}

TEST_F(UnreadableStrengths, KeepUnsavedWork)
{
    ClickEntry(32);
    const Values unsaved = ValuesOf(Canvas());
    Ship("1\r\n2\r\n3\r\n4\r\n");
    PressVetroInVain();
    EXPECT_EQ(session.ending, 1);
    ASSERT_FALSE(KeptWork().isEmpty());
    EXPECT_TRUE(ValuesOf(ReadPicture(KeptWork().toStdString()).picture) == unsaved);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told.front().text.contains(KeptWork())) << dialogs.told.front();
}

TEST_F(UnreadableStrengths, EndTheProgramAtAResizeToo)
{
    PressVetro([this](QWidget& window) {
        Ship("");
        window.resize(window.width() + 50, window.height());
        EXPECT_EQ(session.ending, 1);
    });
    EXPECT_THAT(dialogs.told, testing::SizeIs(1));
    EXPECT_EQ(session.doc.NumEffetti, 0);
}

TEST_F(UnreadableStrengths, LeaveNoWindowBehind)
{
    Ship("");
    PressVetroInVain();
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

}  // namespace
}  // namespace pixano::test
