// How the menus are left: by their keys, by those of a command, by another window.
#include "screen/menus.h"
#include "support/modal_steps.h"

namespace pixano::test {
namespace {

class MenusLeft : public MenusAtHand {};

TEST_F(MenusLeft, TakeNoLetterOnceTheyAreClosed)
{
    OpenSized(300, 200);
    for (const char* const keys : {"alt+f", "F10"}) {
        Activate(session.form1);
        Do(QString("key ") + keys);
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); })) << keys;
        CloseMenus();
        Do("key e");
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; })) << keys;
    }
}

TEST_F(MenusLeft, TakeNoLetterOnceAnotherWindowWasUsed)
{
    OpenSized(300, 200);
    const std::vector<std::vector<const char*>> ways{{"alt"}, {"alt", "Left"}, {"F10", "Left"}};
    for (const std::vector<const char*>& keys : ways) {
        Activate(session.form1);
        for (const char* const key : keys)
            Do(QString("key ") + key);
        EXPECT_TRUE(ComesToHold([this] { return session.form1.menuBar()->hasFocus(); }));
        Activate(session.form9);
        Activate(session.form1);
        Do("key e");
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }))
            << keys.front() << " and " << keys.back();
    }
}

TEST_F(MenusLeft, OpenAtF10AndCloseAtTheSecond)
{
    OpenSized(300, 200);
    for (QWidget* const window : std::initializer_list<QWidget*>{&session.form1, &session.form9}) {
        Activate(*window);
        Do("key F10");
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); }));
        Do("key F10");
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }));
        EXPECT_FALSE(session.form1.menuBar()->hasFocus());
        EXPECT_TRUE(StaysOnceAnswered([&] { return IsActive(*window); }));
    }
}

TEST_F(MenusLeft, CloseWhenTheKeysOfACommandArePressed)
{
    OpenSized(300, 200);
    Apply("Specchio");
    for (const auto& [window, keys, state] : {std::tuple<QWidget*, const char*, History>(
                                                  &session.form1, "ctrl+0", {false, false, true}),
                                              {&session.form2, "ctrl+y", {false, true, false}},
                                              {&session.form9, "ctrl+0", {false, false, true}}}) {
        SCOPED_TRACE(keys);
        LetTheFocusSettle();
        Activate(*window);
        Do("key alt+e");
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("Effetti"); }));
        Do("key f");
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("Fantas"); }));
        Do(QString("key ") + keys);
        EXPECT_TRUE(ComesToHold([&, wanted = state] { return MenuHistory() == wanted; }));
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }));
        EXPECT_FALSE(session.form1.menuBar()->hasFocus());
    }
}

TEST_F(MenusLeft, CloseWhenTheKeysThatHaveNoEntryArePressed)
{
    OpenSized(300, 200);
    for (QWidget* const window : std::initializer_list<QWidget*>{&session.form1, &session.form9}) {
        SCOPED_TRACE(window->objectName().toStdString());
        dialogs.told.clear();
        LetTheFocusSettle();
        Activate(*window);
        Do("key alt+e");
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("Effetti"); }));
        Do("key ctrl+v");
        EXPECT_TRUE(ComesToHold([this] { return dialogs.told.size() == 1; }));
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }));
        EXPECT_FALSE(session.form1.menuBar()->hasFocus());
    }
}

TEST_F(MenusLeft, ObeyTheKeysAgainAfterAnEntryOfTheBarWasChosen)
{
    OpenSized(300, 200);
    const auto ways =
        std::to_array<std::pair<QWidget*, const char*>>({{&session.form1, "alt+i"},
                                                         {&session.form1, "alt Left Left Return"},
                                                         {&session.form1, "alt+f Escape alt+i"},
                                                         {&session.form9, "alt+i"},
                                                         {&session.form9, "F10 Left Left Return"}});
    for (const auto& [window, keys] : ways) {
        SCOPED_TRACE(window->objectName().toStdString() + ' ' + keys);
        LetTheFocusSettle();
        Activate(*window);
        // The second time the last entry of the bar, whatever was left over from the first.
        for (const QString& path : {QString(keys), QString("F10 Left Return")}) {
            QString opened;
            const ModalSteps steps({[&](QDialog& dialog) {
                opened = dialog.objectName();
                EXPECT_TRUE(ComesToHold([&] { return IsActive(dialog); }));
                Do("key Escape");
                EXPECT_TRUE(ComesToHold([&] { return !dialog.isVisible(); }));
            }});
            for (const QString& key : path.split(' ')) {
                Do("key " + key);
                QTest::qWait(50);
            }
            EXPECT_TRUE(ComesToHold([&] { return !opened.isEmpty(); })) << path.toStdString();
            EXPECT_EQ(opened, path == keys ? "Form5" : "Form7");
            EXPECT_TRUE(Stays([this] { return !session.form1.menuBar()->hasFocus(); }));
        }
    }
}

TEST_F(MenusLeft, GiveNoFocusBackOnceAThirdWindowWasUsed)
{
    OpenSized(30, 20);
    Activate(session.form9);
    // To an entry without a menu.
    for (const char* const key : {"F10", "Left"}) {
        Do(QString("key ") + key);
        QTest::qWait(50);
    }
    EXPECT_TRUE(ComesToHold([this] { return session.form1.menuBar()->hasFocus(); }));
    EXPECT_TRUE(ComesToHold([] { return QApplication::activePopupWidget() == nullptr; }));
    Activate(session.form10);
    EXPECT_TRUE(StaysOnceAnswered([this] { return IsActive(session.form10); }));
}

TEST_F(MenusLeft, GiveTheFocusBackWhenNoneOfTheirEntriesIsChosen)
{
    OpenSized(30, 20);
    for (QWidget* const window :
         std::initializer_list<QWidget*>{&session.form2, &session.form9, &session.form10})
        for (const char* const key : {"F10", "alt+e"}) {
            SCOPED_TRACE(window->objectName().toStdString() + ' ' + key);
            Activate(*window);
            Do(QString("key ") + key);
            EXPECT_TRUE(ComesToHold([] { return QApplication::activePopupWidget() != nullptr; }));
            CloseMenus();
            EXPECT_TRUE(StaysOnceAnswered([&] { return IsActive(*window); }));
        }
    // In the main window itself they leave it there; and once chosen, an entry goes its own way.
    Activate(session.form1);
    Do("key F10");
    EXPECT_TRUE(ComesToHold([] { return QApplication::activePopupWidget() != nullptr; }));
    CloseMenus();
    EXPECT_TRUE(Stays([this] { return IsActive(session.form1); }));
    Activate(session.form2);
    Do("key alt+e");
    EXPECT_TRUE(ComesToHold([this] { return IsOpen("Effetti"); }));
    Do("key f");
    EXPECT_TRUE(ComesToHold([this] { return IsOpen("Fantas"); }));
    Do("key Down Return");
    EXPECT_TRUE(StaysOnceAnswered([this] { return IsActive(session.form10); }));
    EXPECT_EQ(session.doc.Effetto, "Fantastic 2");
}

}  // namespace
}  // namespace pixano::test
