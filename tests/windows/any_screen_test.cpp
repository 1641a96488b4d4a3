// Every window on whatever screen there is: on it as a whole, with nothing cut off. Runs on small
// screens too, by way of the toolkit's scale.
#include "panels/form11.h"
#include "panels/form5.h"
#include "panels/form6.h"
#include "panels/form7.h"
#include "panels/form8.h"
#include "support/program.h"
#include "windows/screen_dialogs.h"
#include "windows/wrapped_text.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QTreeView>

namespace pixano::test {
namespace {

QRect Screen()
{
    return QApplication::primaryScreen()->availableGeometry();
}

void ExpectOnScreen(const QWidget& window)
{
    EXPECT_TRUE(Screen().contains(window.frameGeometry()))
        << window.objectName().toStdString() << " stands at " << window.frameGeometry().x() << ", "
        << window.frameGeometry().y() << " and takes " << window.frameGeometry().width() << " x "
        << window.frameGeometry().height();
}

/// Does this to the next modal window once it is up, and closes it.
template <typename Window>
void WhileShown(const std::function<void(Window&)>& action)
{
    QTimer::singleShot(0, [action] {
        auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
        action(*window);
        window->QDialog::reject();
    });
}

class AnyScreen : public Program {
  protected:
    void OpenSquare(int side) { Open(QString::number(side) + ".bmp", Varied(side, side)); }
};

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
    }
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

TEST_F(AnyScreen, HoldsTheFileDialogs)
{
    ScreenDialogs screen;
    WhileShown<QFileDialog>([](QFileDialog& dialog) { ExpectOnScreen(dialog); });
    screen.AskOpenName(QDir::currentPath());
    WhileShown<QFileDialog>([](QFileDialog& dialog) { ExpectOnScreen(dialog); });
    screen.AskSaveName(QDir::currentPath());
}

TEST_F(AnyScreen, ShowsTheColumnsOfTheFileDialogWhole)
{
    Made("figura.bmp", Varied(60, 60));
    ScreenDialogs screen;
    WhileShown<QFileDialog>([](QFileDialog& dialog) {
        const auto* const list = dialog.findChild<QTreeView*>("treeView");
        const auto shown = [&] { return list->model()->rowCount(list->rootIndex()) > 0; };
        ASSERT_TRUE(QTest::qWaitFor(shown));
        for (int column = 1; column < list->header()->count(); ++column) {
            const QModelIndex cell = list->model()->index(0, column, list->rootIndex());
            const auto whole = [&] {
                return !cell.data().toString().isEmpty() &&
                       list->columnWidth(column) >= list->sizeHintForIndex(cell).width() &&
                       list->columnWidth(column) >= list->header()->sectionSizeHint(column);
            };
            EXPECT_TRUE(QTest::qWaitFor(whole)) << cell.data().toString().toStdString();
        }
    });
    screen.AskOpenName(QDir::currentPath());
}

/// The same name, letter for letter, as long as it is.
TEST_F(AnyScreen, HoldsAMessageAboutAFileWithALongName)
{
    const QString text = "File /home/utente/" + QString(200, 'm') + ".bmp non trovato!";
    ScreenDialogs screen;
    WhileShown<QMessageBox>([&](QMessageBox& box) {
        ExpectOnScreen(box);
        EXPECT_EQ(box.text(), text);
        auto* const shown = box.findChild<WrappedText*>("WrappedText");
        ASSERT_NE(shown, nullptr);
        EXPECT_TRUE(shown->isVisible());
        EXPECT_EQ(shown->accessibleName(), text);
        EXPECT_TRUE(box.rect().contains(shown->geometry()));
        // So many lines do 200 letters take, none of which is cut off.
        const int name = box.fontMetrics().horizontalAdvance(QString(200, 'm'));
        EXPECT_GE(shown->height(), (name / shown->width() + 1) * box.fontMetrics().height());
        const QImage image = shown->grab().toImage();
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(image.width() - 1, image.height() - 1))
                    ink |= QRect(x, y, 1, 1);
        EXPECT_GT(ink.height(), shown->height() / 2);
    });
    screen.Tell(BoxIcon::Exclamation, "Attenzione!", text);
}

TEST_F(AnyScreen, WrapsAMessageOfShortWordsAsTheToolkitDoes)
{
    ScreenDialogs screen;
    WhileShown<QMessageBox>([](QMessageBox& box) {
        ExpectOnScreen(box);
        EXPECT_EQ(box.findChild<WrappedText*>("WrappedText"), nullptr);
        const auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
        EXPECT_GE(label->width(), label->minimumSizeHint().width());
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    });
    screen.Tell(BoxIcon::Exclamation, "Attenzione!", QString("parole ").repeated(15) + '.');
}

TEST_F(AnyScreen, HoldsAMessageOfManyWords)
{
    ScreenDialogs screen;
    WhileShown<QMessageBox>([](QMessageBox& box) { ExpectOnScreen(box); });
    screen.Tell(BoxIcon::Exclamation, "Attenzione!", QString("parole ").repeated(60) + '.');
}

}  // namespace
}  // namespace pixano::test
