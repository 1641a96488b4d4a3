// Every window on whatever screen there is: on it as a whole, with nothing cut off. Runs on small
// screens too, by way of the toolkit's scale.
#include "canvas/shrink.h"
#include "panels/form11.h"
#include "panels/form5.h"
#include "panels/form6.h"
#include "panels/form7.h"
#include "panels/form8.h"
#include "windows/form9.h"
#include "windows/on_screen.h"
#include "windows/surface_image.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace pixano::test {
namespace {

TEST_F(AnyScreen, HoldsTheMainWindowWithAllItsMenus)
{
    ExpectOnScreen(session.form1);
    const auto* const bar = session.form1.findChild<QWidget*>("MenuBar");
    EXPECT_GE(bar->width(), bar->sizeHint().width());
}

TEST_F(AnyScreen, ShowsItsPicturesInTheScreensOwnDots)
{
    const qreal dots = QApplication::primaryScreen()->devicePixelRatio();
    const Form5 emblem;
    const Form6 opening;
    for (const QWidget* const window :
         {static_cast<const QWidget*>(&emblem), static_cast<const QWidget*>(&opening)}) {
        const QPixmap shown = window->findChild<QLabel*>("Picture1")->pixmap();
        EXPECT_EQ(shown.devicePixelRatio(), dots) << window->objectName().toStdString();
        // As large to the eye on each, unless the screen is too small for it.
        EXPECT_GE(shown.deviceIndependentSize().width(), std::min(480, Screen().width() * 3 / 4));
    }
}

/// The pixels that the control paints of that part of it.
QImage Painted(QWidget& control, const QRect& part)
{
    return control.grab(part).toImage().convertToFormat(QImage::Format_RGBX8888);
}

TEST_F(AnyScreen, ShowsASmallerPreviewInItsOwnDotsWholeAndInParts)
{
    const Surface picture = Varied(64, 48);
    ImageControl control;
    control.SetPicture(picture);
    control.SetStretch(true);
    // Both are whole dots at every scale that is tried.
    control.resize(28, 20);
    const QRect part(8, 4, 12, 8);
    const double dots = control.devicePixelRatioF();
    const auto scaled = [dots](int length) { return static_cast<int>(length * dots); };
    const Surface whole =
        ShrunkPart(picture, scaled(28), scaled(20), {0, 0, scaled(28), scaled(20)});
    EXPECT_EQ(Painted(control, control.rect()), ImageOf(whole));
    EXPECT_EQ(Painted(control, part),
              ImageOf(whole).copy(scaled(8), scaled(4), scaled(12), scaled(8)));
}

TEST_F(AnyScreen, LeavesThePaletteFreeBesideTheMainWindowWhereTheMenusAllowIt)
{
    constexpr int Palette = 217;
    const int menus = session.form1.findChild<QWidget*>("MenuBar")->sizeHint().width();
    // On a narrower screen it is no wider than its menus.
    if (Screen().width() - 2 * Palette < menus + 8)
        EXPECT_EQ(session.form1.width(), menus);
    else
        EXPECT_LE(session.form1.frameGeometry().right(), Screen().right() - Palette);
}

TEST_F(AnyScreen, HoldsThePaletteAndTheSliderWindow)
{
    OpenSquare(50);
    ExpectOnScreen(session.form10);
    Form11 slider("Negativo Artistico", session.form10);
    slider.show();
    // For its title it may be wider than the palette; what is used of it is not.
    for (const QWidget* const control : slider.findChildren<QWidget*>())
        EXPECT_TRUE(Screen().contains(QRect(control->mapToGlobal(QPoint()), control->size())))
            << control->objectName().toStdString();
}

TEST_F(AnyScreen, LeavesThePaletteFreeBesideALargePicture)
{
    OpenSquare(2 * Screen().width());
    QCoreApplication::processEvents();
    for (const HeldWindow* const window :
         std::initializer_list<HeldWindow*>{&session.form2, &session.form9}) {
        ExpectOnScreen(*window);
        EXPECT_FALSE(window->frameGeometry().intersects(session.form10.frameGeometry()));
        EXPECT_TRUE(window->horizontalScrollBar()->isVisible());
        EXPECT_TRUE(window->verticalScrollBar()->isVisible());
    }
}

TEST_F(AnyScreen, PutsThePreviewIntoTheCornerBesideThePalette)
{
    OpenSquare(80);
    const QPoint corner(session.form10.x(), Screen().bottom());
    const QPoint apart = corner - session.form9.frameGeometry().bottomRight();
    EXPECT_THAT(apart.x(), testing::AllOf(testing::Ge(0), testing::Le(20)));
    EXPECT_THAT(apart.y(), testing::AllOf(testing::Ge(0), testing::Le(40)));
}

TEST_F(AnyScreen, KeepsTheStatedSizeOfAPictureThatFits)
{
    const int side = Screen().height() - 150;
    OpenSquare(side);
    EXPECT_EQ(session.form2.width(), qRound(side * 15.8 / 15));
    EXPECT_EQ(session.form9.width(), side);
}

TEST_F(AnyScreen, KeepsThePreviewOnItWhileItGrows)
{
    OpenSquare(Screen().width() / 3);
    for (int i = 0; i < 4; ++i) {
        Button("Command1").click();
        ExpectOnScreen(session.form9);
    }
}

TEST_F(AnyScreen, LeavesThePreviewWhereItWasPutWhileItsSizeStays)
{
    OpenSquare(50);
    Apply("Specchio");
    session.form9.move(-20, 30);
    // The platform without a screen adds a frame of its own once it is asked.
    QCoreApplication::processEvents();
    const QPoint put = session.form9.pos();
    Apply("Specchio");
    EXPECT_EQ(session.form9.pos(), put);
}

TEST_F(AnyScreen, HoldsTheProgressWindow)
{
    session.form4.Show();
    ExpectOnScreen(session.form4);
    session.form4.hide();
}

TEST_F(AnyScreen, HoldsTheWindowsThatOnlyAskOrInform)
{
    Form5 emblem;
    Form6 opening;
    Form7 description;
    Subtraction subtraction;
    Form8 parameters(subtraction);
    for (QDialog* const window :
         std::initializer_list<QDialog*>{&emblem, &opening, &description, &parameters}) {
        window->show();
        ExpectOnScreen(*window);
    }
}

TEST_F(AnyScreen, HoldsTheDescriptionAndItsButtonInVeryLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(3 * QFontInfo(usual).pointSizeF());
    QApplication::setFont(large);
    Form7 description;
    description.show();
    ExpectOnScreen(description);
    EXPECT_TRUE(
        description.rect().contains(description.findChild<QPushButton*>("Command1")->geometry()));
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace pixano::test
