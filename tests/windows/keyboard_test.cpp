// Every window for people without a mouse: tab order, keys and letters.
#include "windows/all_windows.h"

#include <set>
#include <utility>

namespace pixano::test {
namespace {

/// The controls that the tab key stops at, from the first one on.
QStringList TabStops(const QWidget& window)
{
    QStringList stops;
    for (QWidget* next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        const bool part = next->objectName().startsWith("qt_") || next->objectName().isEmpty();
        if ((next->focusPolicy() & Qt::TabFocus) != 0 && !part) stops.append(next->objectName());
    }
    return stops;
}

/// Opens the menu with its letter; it is the popup then.
void OpenMenu(Form1& window, Qt::Key letter)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, letter, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Accessibility, TheTabKeyGoesFromTopToBottom)
{
    EXPECT_EQ(TabStops(form5), QStringList({"Command1"}));
    EXPECT_EQ(TabStops(form7), QStringList({"RichTextBox1", "Command1"}));
    EXPECT_EQ(TabStops(form8), QStringList({"Combo1", "Command1", "Command2"}));
    EXPECT_EQ(TabStops(form11), QStringList({"Slider1", "Command1", "Command2"}));
    QStringList buttons;
    for (const PaletteButton& row : PaletteButtons())
        buttons.append(row.name);
    EXPECT_EQ(TabStops(session.form10), buttons);
}

TEST_F(Accessibility, ReturnIsOkInEveryDialogThatHasOne)
{
    for (QWidget* const dialog : std::initializer_list<QWidget*>{&form5, &form7, &form8, &form11}) {
        const auto* const ok = dialog->findChild<QPushButton*>("Command1");
        ASSERT_NE(ok, nullptr);
        EXPECT_EQ(ok->text(), "OK");
        int clicked = 0;
        QObject::connect(ok, &QPushButton::clicked, [&clicked] { ++clicked; });
        dialog->show();
        QTest::keyClick(dialog, Qt::Key_Return);
        EXPECT_EQ(clicked, 1) << dialog->objectName().toStdString();
    }
}

TEST_F(Accessibility, EscapeIsAnnullaOrClosesInEveryDialog)
{
    for (QWidget* const window :
         std::initializer_list<QWidget*>{&form5, &form6, &form7, &form8, &form11}) {
        auto* const dialog = static_cast<QDialog*>(window);
        dialog->show();
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible()) << dialog->objectName().toStdString();
    }
    EXPECT_EQ(form8.result(), QDialog::Rejected);
    EXPECT_EQ(form11.result(), QDialog::Rejected);
}

TEST_F(Accessibility, NoTwoEntriesOfAMenuShareALetter)
{
    std::set<std::pair<QString, QString>> letters;
    int count = 0;
    for (std::size_t i = 0; i < MenuEntries().size(); ++i) {
        const QKeySequence keys =
            QKeySequence::mnemonic(session.form1.Control(static_cast<int>(i)).text());
        if (keys.isEmpty()) continue;
        ++count;
        EXPECT_TRUE(letters.insert({MenuEntries()[i].parent, keys.toString()}).second)
            << MenuEntries()[i].caption;
    }
    EXPECT_GT(count, 20);
}

TEST_F(Accessibility, TheMenusOpenWithAltAndTheirLetter)
{
    for (const auto& [letter, menu] : {std::pair(Qt::Key_F, "File"), {Qt::Key_E, "Effetti"}}) {
        ASSERT_NO_FATAL_FAILURE(OpenMenu(session.form1, letter));
        EXPECT_EQ(QApplication::activePopupWidget()->objectName(), menu);
        QApplication::activePopupWidget()->close();
    }
}

TEST_F(Accessibility, EffectsStartByTheKeyboardAlone)
{
    ASSERT_NO_FATAL_FAILURE(OpenMenu(session.form1, Qt::Key_F));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_M);
    EXPECT_EQ(CanvasCaption(), "Multifoto   8x6");  // this effect makes the sides even
}

}  // namespace
}  // namespace pixano::test
