// The menus at hand from every window, whatever lies above the main window.
#include "screen/menus.h"

#include <QElapsedTimer>
#include <QWindow>

namespace pixano::test {
namespace {

TEST_F(MenusAtHand, OpenAtTheirKeysFromEveryWindow)
{
    OpenSized(300, 200);
    for (QWidget* const window : Companions())
        for (const auto& [keys, menu] :
             {std::pair("alt+f", "File"), {"alt+e", "Effetti"}, {"F10", "File"}}) {
            Activate(*window);
            Do(QString("key ") + keys);
            EXPECT_TRUE(ComesToHold([this] { return session.form1.isActiveWindow(); }));
            QElapsedTimer sinceTheFocus;
            sinceTheFocus.start();
            EXPECT_TRUE(ComesToHold([&, name = menu] { return IsOpen(name); }))
                << keys << " in " << window->objectName().toStdString();
            // At once, and not when the patience with the window manager is at its end.
            EXPECT_LT(sinceTheFocus.elapsed(), 500);
            const auto* const open = session.form1.findChild<QMenu*>(menu);
            EXPECT_TRUE(
                ComesToHold([&] { return open->activeAction() == open->actions().front(); }));
            EXPECT_TRUE(ComesToHold([this] { return IsActive(session.form1); }));
            CloseMenus();
        }
}

// A name typed into the wrong window must not start an effect.
TEST_F(MenusAtHand, StartAnEntryOfTheBarThatIsWalkedTo)
{
    OpenSized(300, 200);
    Apply("Specchio");
    for (const auto& [window, keys] : {std::pair<QWidget*, const char*>(&session.form1, "F10"),
                                       {&session.form2, "F10"},
                                       {&session.form2, "alt+f"},
                                       {&session.form9, "F10"},
                                       {&session.form9, "alt+f"},
                                       {&session.form10, "F10"},
                                       {&session.form10, "alt+f"}}) {
        LetTheFocusSettle();
        Activate(*window);
        Do(QString("key ") + keys);
        EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); })) << keys;
        ASSERT_EQ(MenuHistory(), (History{false, true, false}));
        for (const char* const key : {"Right", "Right", "Return"})
            Do(QString("key ") + key);
        ASSERT_TRUE(ComesToHold([this] { return session.doc.InOriginale == 1; }))
            << keys << " in " << window->objectName().toStdString();
        // The next step may be wanted from there.
        EXPECT_TRUE(Stays([this] { return IsActive(session.form1); })) << keys;
        Do("key e");
        EXPECT_TRUE(Stays([] { return QApplication::activePopupWidget() == nullptr; }));
        ClickEntry(entry::Redo);
    }
}

TEST_F(MenusAtHand, OpenFromAMinimisedMainWindow)
{
    OpenSized(300, 200);
    Minimise(session.form1);
    Activate(session.form2);
    Do("key alt+f");
    EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); }));
    EXPECT_TRUE(ComesToHold([this] { return !IsIconic(session.form1); }));
    CloseMenus();
}

TEST_F(MenusAtHand, WaitForTheFocusAsLongEachTime)
{
    constexpr int Patience = 1000;
    OpenSized(300, 200);
    Activate(session.form10);
    QElapsedTimer sinceTheFirst;
    sinceTheFirst.start();
    Do("key F10");
    EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); }));
    CloseMenus();
    Activate(session.form10);
    session.form1.windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
    QTest::qWait(Patience / 2 - static_cast<int>(sinceTheFirst.elapsed()));
    Do("key F10");
    const int left = Patience + Patience / 5 - static_cast<int>(sinceTheFirst.elapsed());
    EXPECT_FALSE(QTest::qWaitFor([this] { return IsOpen("File"); }, left));
    EXPECT_TRUE(ComesToHold([this] { return IsOpen("File"); }));
    CloseMenus();
}

// What was shown would no longer be true of the canvas, and the next letter start something.
TEST_F(MenusAtHand, StartAnEntryOfTheBarAtItsKeyWhileItIsOn)
{
    OpenSized(30, 20);
    Apply("Specchio");
    Activate(session.form2);
    Do("key alt+o");
    EXPECT_TRUE(ComesToHold([this] { return session.doc.InOriginale == 1; }));
    // Off now: the same keys do nothing.
    Activate(session.form9);
    Do("key alt+o");
    EXPECT_EQ(session.doc.InOriginale, 1);
    EXPECT_EQ(MenuHistory(), (History{false, false, true}));
}

}  // namespace
}  // namespace pixano::test
