// The slider window in the running program: the strengths in memory and in "valori.tip".
#include "panels/strengths_run.h"

#include <array>

namespace pixano::test {
namespace {

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
    Ship("valori.tip", "1\r\n2\r\n0.25\r\n4\r\n5\r\n");
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
        Ship("valori.tip", "1\r\n2\r\n333\r\n4\r\n5\r\n");
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

}  // namespace
}  // namespace pixano::test
