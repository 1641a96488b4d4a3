// File dialogs and messages on whatever screen there is: on it as a whole, with nothing cut off.
#include "windows/on_screen.h"
#include "windows/screen_dialogs.h"
#include "windows/wrapped_text.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QTreeView>

#include <functional>

namespace pixano::test {
namespace {

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

TEST_F(AnyScreen, HoldsTheFileDialogs)
{
    ScreenDialogs screen;
    WhileShown<QFileDialog>([](QFileDialog& dialog) { ExpectOnScreen(dialog); });
    screen.AskOpenName(QDir::currentPath());
    WhileShown<QFileDialog>([](QFileDialog& dialog) { ExpectOnScreen(dialog); });
    screen.AskSaveName(QDir::currentPath(), {});
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
    screen.Tell(BoxIcon::Exclamation, "Attenzione!", QString("parole ").repeated(100) + '.');
}

}  // namespace
}  // namespace pixano::test
