#include "panels/form10.h"

#include "panels/expected_buttons.h"
#include "shell/controls.h"

#include <QGroupBox>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace pixano::test {
namespace {

/// The palette on the screen, in front of another window.
class PaletteWindow : public testing::Test {
  protected:
    PaletteWindow() { palette.show(); }

    QRect PlaceOf(const char* name) const
    {
        const auto* const button = palette.findChild<QPushButton*>(name);
        return {button->mapTo(&palette, QPoint(0, 0)), button->size()};
    }

    Form10 palette{PaletteButtons()};
};

/// 3250 twips are 216.7 pixels.
constexpr int FromRightEdge = 217;

TEST_F(PaletteWindow, StandsAtTheTopAgainstTheRightEdge)
{
    EXPECT_EQ(palette.windowTitle(), "Strumenti");
    EXPECT_FALSE(palette.isModal());
    EXPECT_EQ(palette.pos(), QPoint(palette.screen()->size().width() - FromRightEdge, 0));
    // With the wide frame of some desktops, too: they would move it away from there.
    EXPECT_LE(5 + palette.width() + 5, FromRightEdge);
}

TEST_F(PaletteWindow, StandsThereAgainWhenItWasClosed)
{
    const QPoint place = palette.pos();
    palette.move(100, 200);
    palette.show();
    EXPECT_EQ(palette.pos(), QPoint(100, 200));
    palette.close();
    palette.show();
    EXPECT_EQ(palette.pos(), place);
}

TEST_F(PaletteWindow, CanBeClosedAndNothingElse)
{
    const Qt::WindowFlags flags = palette.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(palette.minimumSize(), palette.maximumSize());
}

TEST_F(PaletteWindow, HasSoManyButtonsInEachRow)
{
    std::vector<std::vector<int>> rows;
    for (const char* const first : {"SSCommand15", "SSCommand7", "SSCommand2", "Command1"}) {
        std::vector<int>& box = rows.emplace_back();
        const auto* const parent = palette.findChild<QPushButton*>(first)->parentWidget();
        int top = -1;
        for (const auto* button : parent->findChildren<QPushButton*>()) {
            if (button->y() != std::exchange(top, button->y())) box.push_back(0);
            ++box.back();
        }
    }
    EXPECT_EQ(rows, (std::vector<std::vector<int>>{{3}, {4, 4, 3}, {2, 2, 2, 2, 2, 2}, {2}}));
}

TEST_F(PaletteWindow, StartsWithTheKeyboardOnTheFirstReflection)
{
    EXPECT_EQ(palette.focusWidget(), palette.findChild<QPushButton*>("SSCommand7"));
}

TEST_F(PaletteWindow, MovesTheKeyboardOnlyFromAButtonThatIsSwitchedOff)
{
    auto* const used = palette.findChild<QPushButton*>("SSCommand2");
    used->setFocus();
    palette.EnableHistory({.annulla = false, .originale = false, .ripristina = false});
    EXPECT_EQ(palette.focusWidget(), used);
}

TEST_F(PaletteWindow, HasItsThreeFramesInOrder)
{
    QStringList captions;
    int below = 0;
    for (const QGroupBox* const frame : palette.findChildren<QGroupBox*>()) {
        captions.append(frame->title());
        EXPECT_GE(frame->y(), below);
        below = frame->y() + frame->height();
    }
    EXPECT_EQ(captions, QStringList({"Funzioni ", "Riflessi ", "Effetti "}));
    EXPECT_GE(PlaceOf("Command1").top(), below);
    EXPECT_EQ(PlaceOf("Command1").top(), PlaceOf("Command2").top());
}

TEST_F(PaletteWindow, ShowsItsButtonsInReadingOrderWithoutOverlap)
{
    QRect before;
    for (const ExpectedButton& expected : ExpectedButtons) {
        const QRect place = PlaceOf(expected.name);
        EXPECT_TRUE(palette.rect().contains(place)) << expected;
        const bool follows = place.top() == before.top() && place.left() > before.right();
        EXPECT_TRUE(follows || place.top() > before.bottom()) << expected;
        before = place;
    }
}

TEST_F(PaletteWindow, HasButtonsOfOneWidthInEachRow)
{
    for (const QGroupBox* const frame : palette.findChildren<QGroupBox*>()) {
        std::map<int, std::vector<int>> rows;
        for (const QPushButton* const button : frame->findChildren<QPushButton*>())
            rows[button->y()].push_back(button->width());
        for (const auto& [y, widths] : rows)
            EXPECT_LE(std::ranges::max(widths) - std::ranges::min(widths), 1) << "at " << y;
    }
}

TEST_F(PaletteWindow, NamesItsButtonsThoughAnotherWindowHasTheKeyboard)
{
    EXPECT_TRUE(palette.testAttribute(Qt::WA_AlwaysShowToolTips));
}

TEST_F(PaletteWindow, CutsOffNoCaption)
{
    for (const QPushButton* const button : palette.findChildren<QPushButton*>())
        EXPECT_LT(button->fontMetrics().horizontalAdvance(button->text()), button->width() - 2)
            << button->objectName().toStdString();
}

TEST_F(PaletteWindow, MakesRoomForLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * QFontInfo(usual).pointSizeF());
    QApplication::setFont(large);
    Form10 other(PaletteButtons());
    other.show();
    EXPECT_EQ(other.width(), palette.width());
    for (const QPushButton* const button : other.findChildren<QPushButton*>())
        EXPECT_LT(button->fontMetrics().horizontalAdvance(button->text()), button->width() - 2)
            << button->objectName().toStdString();
    QApplication::setFont(usual);
}

TEST_F(PaletteWindow, ComesForwardAtAClickOnItsBackground)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::mouseClick(&palette, Qt::LeftButton, {}, {1, palette.height() - 2});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&palette));
}

TEST_F(PaletteWindow, ComesForwardAtAClickInsideAFrame)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::mouseClick(palette.findChild<QGroupBox*>(), Qt::LeftButton, {}, {1, 1});
    EXPECT_TRUE(QTest::qWaitForWindowActive(&palette));
}

TEST_F(PaletteWindow, SwitchesOnlyTheHistoryButtonsThatItIsToldTo)
{
    const auto enabled = [this] {
        std::string shown;
        for (const char* name : {"SSCommand15", "SSCommand16", "SSCommand17"})
            shown += palette.findChild<QPushButton*>(name)->isEnabled() ? '+' : '-';
        return shown;
    };
    palette.EnableHistory({.annulla = false, .originale = false, .ripristina = false});
    EXPECT_EQ(enabled(), "---");
    palette.EnableHistory({.annulla = {}, .originale = true, .ripristina = {}});
    EXPECT_EQ(enabled(), "-+-");
    palette.EnableHistory({.annulla = true, .originale = {}, .ripristina = true});
    EXPECT_EQ(enabled(), "+++");
}

TEST_F(PaletteWindow, ObeysTheReturnKeyAndTheBlank)
{
    std::vector<std::string> told;
    QObject::connect(&palette, &Form10::Pressed,
                     [&](const PaletteButton& button) { told.emplace_back(button.name); });
    auto* const button = palette.findChild<QPushButton*>("SSCommand14");
    QTest::keyClick(button, Qt::Key_Return);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(told, (std::vector<std::string>{"SSCommand14", "SSCommand14"}));
}

}  // namespace
}  // namespace pixano::test
