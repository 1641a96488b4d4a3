// The file dialogs as they are really used: seen, typed into, and answered.
#include "files/descriptor.h"
#include "screen/desktop.h"
#include "windows/screen_dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeView>

#include <array>

#include <sys/inotify.h>
#include <unistd.h>

namespace pixano::test {
namespace {

class FileDialogs : public Desktop {
  protected:
    /// Asks for a name to open or save; does that meanwhile, once the dialog has the keyboard.
    std::optional<QString> Ask(bool saving, const QString& folder,
                               const std::function<void(QFileDialog&)>& meanwhile)
    {
        QTimer::singleShot(0, [meanwhile] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_TRUE(ComesToHold([&] { return IsActive(*dialog); }));
            meanwhile(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        return saving ? screen.AskSaveName(folder, {}) : screen.AskOpenName(folder);
    }
    std::optional<QString> Typed(bool saving, const QString& name)
    {
        return Ask(saving, QDir::currentPath(), [&](QFileDialog& dialog) {
            NameIn(dialog).setText(name);
            Do("key Return");
            ComesToHold([&] { return !dialog.isVisible(); });
        });
    }
    static QLineEdit& NameIn(QFileDialog& dialog)
    {
        return *dialog.findChild<QLineEdit*>("fileNameEdit");
    }
    ScreenDialogs screen;
};

TEST_F(FileDialogs, AreItalianWhateverTheLocale)
{
    Write("figura.bmp", std::string(9270, 'x'));
    QDir().mkdir("cartella");
    Ask(false, QDir::currentPath(), [](QFileDialog& dialog) {
        const auto* const list = dialog.findChild<QTreeView*>("treeView");
        const auto* const model = list->model();
        ASSERT_TRUE(ComesToHold([&] { return model->rowCount(list->rootIndex()) == 2; }));
        const auto cell = [&](int row, int column) {
            return model->index(row, column, list->rootIndex()).data().toString().toStdString();
        };
        const int file = cell(0, 0) == "figura.bmp" ? 0 : 1;
        EXPECT_EQ(cell(file, 1), "9,05 KiB");
        EXPECT_EQ(cell(file, 2), "Immagine BMP");
        EXPECT_EQ(cell(1 - file, 1), "");
        EXPECT_EQ(cell(1 - file, 1), "");
        EXPECT_EQ(cell(1 - file, 2), "Cartella");
        EXPECT_THAT(cell(file, 3),
                    testing::StartsWith(QDate::currentDate().toString("dd/MM/yy").toStdString()));
        EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText(),
                  "(*.Bmp) (*.Jpg) (*.Gif)");
    });
    Ask(true, QDir::currentPath(), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText(), "Bitmap (*.bmp)");
    });
}

TEST_F(FileDialogs, StartInWhatIsLeftOfAFolderThatIsGone)
{
    for (const bool saving : {false, true})
        Ask(saving, Path("andata/via"), [](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory(), QDir::current());
            EXPECT_EQ(NameIn(dialog).text(), "");
        });
}

TEST_F(FileDialogs, ForgetTheNameTypedWhenAFolderIsEntered)
{
    QDir().mkdir("cartella");
    for (const bool saving : {false, true})
        Ask(saving, QDir::currentPath(), [](QFileDialog& dialog) {
            NameIn(dialog).setText("cartella");
            Do("key Return");
            EXPECT_TRUE(ComesToHold([&] { return dialog.directory().dirName() == "cartella"; }));
            EXPECT_TRUE(ComesToHold([&] { return NameIn(dialog).text().isEmpty(); }))
                << NameIn(dialog).text().toStdString();
        });
}

TEST_F(FileDialogs, OfferNothingAnyMoreOnceAFolderIsEntered)
{
    QDir().mkdir("sotto");
    for (const bool saving : {false, true})
        Ask(saving, QDir::currentPath(), [](QFileDialog& dialog) {
            Do("type --delay 5 sotto");
            EXPECT_TRUE(ComesToHold([] { return QApplication::activePopupWidget() != nullptr; }));
            Do("key Return");
            EXPECT_TRUE(ComesToHold([&] { return dialog.directory().dirName() == "sotto"; }));
            EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }));
            EXPECT_TRUE(dialog.isVisible());
        });
}

TEST_F(FileDialogs, TakeTheFirstPressOnAButtonThoughNamesAreOffered)
{
    Write("sotto.bmp", "");
    for (const bool saving : {false, true})
        for (const QDialogButtonBox::StandardButton which :
             {saving ? QDialogButtonBox::Save : QDialogButtonBox::Open, QDialogButtonBox::Cancel}) {
            const std::optional<QString> name =
                Ask(saving, QDir::currentPath(), [which](QFileDialog& dialog) {
                    Do("type --delay 5 sotto.bm");
                    EXPECT_TRUE(
                        ComesToHold([] { return QApplication::activePopupWidget() != nullptr; }));
                    Do("key p");
                    EXPECT_TRUE(ComesToHold([&] { return IsPlaced(dialog); }));
                    const auto* const button = dialog.findChild<QDialogButtonBox*>()->button(which);
                    ClickAt(OriginOf(dialog) + button->mapTo(&dialog, button->rect().center()));
                    EXPECT_TRUE(ComesToHold([&] { return !dialog.isVisible(); }));
                });
            if (which == QDialogButtonBox::Cancel)
                EXPECT_EQ(name, std::nullopt);
            else
                EXPECT_EQ(name, Path("sotto.bmp"));
        }
}

TEST_F(FileDialogs, BeginWithTheNameThatMayBeChangedOrTypedAnew)
{
    for (const auto& [keys, name] :
         {std::pair("End BackSpace BackSpace BackSpace BackSpace 2", "prima2.bmp"),
          {"p o i", "poi.bmp"}}) {
        QTimer::singleShot(0, [keys = QString(keys)] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_TRUE(ComesToHold([&] { return IsActive(*dialog); }));
            EXPECT_EQ(NameIn(*dialog).text(), "prima.bmp");
            Do("key " + keys + " Return");
            EXPECT_TRUE(ComesToHold([&] { return !dialog->isVisible(); }));
            if (dialog->isVisible()) dialog->reject();
        });
        EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), "prima.bmp"), Path(name));
    }
}

TEST_F(FileDialogs, AnswerToEveryNameTyped)
{
    for (const QString& name : {QString("due \"virgolette\".bmp"), QString(300, 'm') + ".bmp",
                                QString(130, u'è') + ".bmp", QString("a.bmp")})
        for (const bool saving : {false, true})
            EXPECT_EQ(Typed(saving, name), Path(name)) << name.toStdString();
    EXPECT_EQ(Typed(true, "\"senza\""), Path("\"senza\".bmp"));
}

/// Reading what lies there would never end.
TEST_F(FileDialogs, ShowFoldersOfTheSystemToo)
{
    for (const bool saving : {false, true})
        Ask(saving, QDir::currentPath(), [](QFileDialog& dialog) {
            Do("type --delay 5 /proc");
            Do("key Return");
            EXPECT_TRUE(ComesToHold([&] { return dialog.directory().path() == "/proc"; }));
            const auto* const list = dialog.findChild<QTreeView*>("treeView");
            EXPECT_TRUE(
                ComesToHold([&] { return list->model()->rowCount(list->rootIndex()) > 20; }));
            Do("key Escape Escape");
            EXPECT_TRUE(ComesToHold([&] { return !dialog.isVisible(); }));
        });
}

TEST_F(FileDialogs, ReadNoFileToShowIt)
{
    for (const char* const name : {"a.bmp", "b.jpg", "senza", "c.gif"})
        Write(name, "GIF89a");
    const Descriptor watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(inotify_add_watch(watch.Number(), QDir::currentPath().toUtf8(), IN_ACCESS), 0);
    for (const bool saving : {false, true})
        Ask(saving, QDir::currentPath(), [](QFileDialog& dialog) {
            auto* const list = dialog.findChild<QTreeView*>("treeView");
            ASSERT_TRUE(
                ComesToHold([&] { return list->model()->rowCount(list->rootIndex()) >= 1; }));
            list->grab();
            // Its thread has looked at every file once the last one's kind is told.
            EXPECT_TRUE(ComesToHold([&] {
                const int last = list->model()->rowCount(list->rootIndex()) - 1;
                return !list->model()
                            ->index(last, 2, list->rootIndex())
                            .data()
                            .toString()
                            .isEmpty();
            }));
        });
    std::array<char, 4096> events{};
    std::string read;
    for (ssize_t size = 0; (size = ::read(watch.Number(), events.data(), events.size())) > 0;)
        for (ssize_t at = 0; at < size;) {
            const auto* const event = reinterpret_cast<const inotify_event*>(events.data() + at);
            if ((event->mask & IN_ISDIR) == 0) read += std::string(event->name) + " ";
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
    EXPECT_EQ(read, "");
}

}  // namespace
}  // namespace pixano::test
