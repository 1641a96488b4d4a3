// The file dialogs: what they offer, and what becomes of a name that is typed.
#include "support/program.h"
#include "windows/file_looks.h"
#include "windows/screen_dialogs.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace pixano::test {
namespace {

class RealFileDialog : public UnstartedProgram {
  protected:
    static void Meanwhile(const std::function<void(QFileDialog&)>& action)
    {
        QTimer::singleShot(0, [action] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            action(*dialog);
        });
    }
    static void Type(QFileDialog& dialog, const QString& name)
    {
        auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(edit, nullptr);
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
        // A dialog that did not take the name must not hold the test up.
        if (dialog.isVisible()) dialog.reject();
    }
    ScreenDialogs screen;
};

TEST_F(RealFileDialog, OpensWithTheFilterInTheFolder)
{
    Meanwhile([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir::current());
        EXPECT_EQ(dialog.windowTitle(), "Apri");
        EXPECT_EQ(dialog.nameFilters(), QStringList("(*.Bmp) (*.Jpg) (*.Gif) (*.bmp *.jpg *.gif)"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    EXPECT_EQ(screen.AskOpenName(QDir::currentPath()), std::nullopt);
}

TEST_F(RealFileDialog, LetsANameBeTypedThatDoesNotExist)
{
    Meanwhile([](QFileDialog& dialog) { Type(dialog, "no.bmp"); });
    EXPECT_EQ(screen.AskOpenName(QDir::currentPath()), Path("no.bmp"));
}

// No file can have such a name: the program has its own message for it.
TEST_F(RealFileDialog, LetsANameBeTypedThatIsAByteTooLong)
{
    for (const QString& name : {QString(252, 'a') + ".bmp", QString(126, QChar(0xE9)) + ".bmp"}) {
        EXPECT_EQ(name.toUtf8().size(), 256);
        Meanwhile([&](QFileDialog& dialog) { Type(dialog, name); });
        EXPECT_EQ(screen.AskOpenName(QDir::currentPath()), Path(name));
        Meanwhile([&](QFileDialog& dialog) { Type(dialog, name); });
        EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), Path(name));
    }
    // With the extension that it is given.
    Meanwhile([](QFileDialog& dialog) { Type(dialog, QString(252, 'a')); });
    EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), Path(QString(252, 'a') + ".bmp"));
}

TEST_F(RealFileDialog, TakesAPointOfTheFolderForNoExtension)
{
    QDir().mkdir("estate.2024");
    const QString folder = Path("estate.2024");
    for (const QString& name : {QString("\"senza\""), QString(252, 'a')}) {
        Meanwhile([&](QFileDialog& dialog) { Type(dialog, name); });
        EXPECT_EQ(screen.AskSaveName(folder, {}), folder + '/' + name + ".bmp");
    }
}

TEST_F(RealFileDialog, TakesOnlyTheLeftButtonBesideTheNamesOffered)
{
    Meanwhile([](QFileDialog& dialog) {
        auto* const names = dialog.findChild<QLineEdit*>("fileNameEdit")->completer()->popup();
        const auto* const button =
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
        for (const auto which : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
            EXPECT_TRUE(dialog.isVisible());
            const QPointF place = button->mapToGlobal(button->rect().center());
            QMouseEvent press(QEvent::MouseButtonPress, names->mapFromGlobal(place), place, which,
                              which, Qt::NoModifier);
            QApplication::sendEvent(names, &press);
            QCoreApplication::processEvents();
        }
        EXPECT_FALSE(dialog.isVisible());
        if (dialog.isVisible()) dialog.reject();
    });
    EXPECT_EQ(screen.AskOpenName(QDir::currentPath()), std::nullopt);
}

TEST_F(RealFileDialog, TakesBlanksForNoName)
{
    for (const QString& blanks : {QString(" "), QString("   ")}) {
        Meanwhile([&](QFileDialog& dialog) { Type(dialog, blanks); });
        EXPECT_EQ(screen.AskOpenName(QDir::currentPath()), std::nullopt);
        Meanwhile([&](QFileDialog& dialog) {
            Type(dialog, blanks);
            EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "");
        });
        EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), std::nullopt);
    }
    Meanwhile([](QFileDialog& dialog) { Type(dialog, " a b "); });
    EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), Path(" a b .bmp"));
}

TEST_F(RealFileDialog, AddsTheDefaultExtensionWhenSaving)
{
    Meanwhile([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.defaultSuffix(), "bmp");
        EXPECT_EQ(dialog.windowTitle(), "Salva con nome");
        EXPECT_EQ(dialog.nameFilters(), QStringList("Bitmap (*.bmp)"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        Type(dialog, "nuovo");
    });
    EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), Path("nuovo.bmp"));
}

TEST_F(RealFileDialog, NamesTheKindsOfFilesInItalian)
{
    const FileLooks looks;
    for (const auto& [name, kind] : {std::pair("a.bmp", "Immagine BMP"),
                                     {"a.jpg", "Immagine JPEG"},
                                     {"a.jpeg", "Immagine JPEG"},
                                     {"A.JPG", "Immagine JPEG"},
                                     {"a.gif", "Immagine GIF"},
                                     {"estate.2024.gif", "Immagine GIF"},
                                     {"a.txt", "File TXT"},
                                     {"senza", "File"},
                                     {".", "Cartella"}})
        EXPECT_EQ(looks.type(QFileInfo(name)), kind) << name;
}

TEST_F(RealFileDialog, AsksNoQuestionOfItsOwnAboutAnExistingFile)
{
    Write("s.bmp", "vecchio");
    Meanwhile([](QFileDialog& dialog) { Type(dialog, "s.bmp"); });
    EXPECT_EQ(screen.AskSaveName(QDir::currentPath(), {}), Path("s.bmp"));
}

}  // namespace
}  // namespace pixano::test
