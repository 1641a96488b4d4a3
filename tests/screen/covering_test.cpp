// The small windows are never covered wholly by the large ones, nor what asks by them.
#include "screen/desktop.h"
#include "windows/free_screen.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <xcb/xcb.h>

namespace pixano::test {
namespace {

class SmallWindows : public Desktop {
  protected:
    static void Maximise(QWidget& window)
    {
        window.showMaximized();
        EXPECT_TRUE(Stays([&] { return window.width() > 1000; }));
    }
    /// Lets the display tell the order of the windows once more, as it is.
    static void TellOrderAgain()
    {
        constexpr std::string_view Property = "_NET_CLIENT_LIST_STACKING";
        xcb_connection_t* const display =
            qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
            xcb_intern_atom_reply(
                display, xcb_intern_atom(display, 1, Property.size(), Property.data()), nullptr),
            &std::free);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
        xcb_change_property(display, XCB_PROP_MODE_APPEND, root, atom->atom, XCB_ATOM_WINDOW, 32, 0,
                            nullptr);
        xcb_flush(display);
    }
    void ExpectNotCoveredBy(const QWidget& large)
    {
        for (const QWidget* const window :
             std::initializer_list<const QWidget*>{&session.form1, &session.form10}) {
            if (!large.frameGeometry().contains(window->frameGeometry())) continue;
            EXPECT_TRUE(StaysOnceAnswered([&] { return IsAbove(*window, large); }))
                << window->objectName().toStdString() << " below "
                << large.objectName().toStdString();
        }
    }
};

TEST_F(SmallWindows, StayBelowWhatWaitsForAnAnswer)
{
    OpenSized(2000, 2000);
    for (HeldWindow* const window :
         std::initializer_list<HeldWindow*>{&session.form9, &session.form2}) {
        SCOPED_TRACE(window->objectName().toStdString());
        QMessageBox box(QMessageBox::Warning, "Attenzione!", "Prova", QMessageBox::Ok,
                        &session.form10);
        box.setWindowModality(Qt::ApplicationModal);
        box.show();
        box.move(session.form1.pos());
        EXPECT_TRUE(ComesToHold([&] { return IsAbove(box, session.form1); }));
        for (int i = 0; i < 2; ++i) {
            ClickAt(window->mapToGlobal(QPoint(30, window->height() - 30)));
            EXPECT_TRUE(StaysOnceAnswered([&] { return IsAbove(box, session.form1); }));
        }
        EXPECT_TRUE(IsAbove(session.form1, *window));
    }
}

TEST_F(SmallWindows, AreNeverCoveredByTheCanvasThatIsRaised)
{
    OpenSized(900, 700);
    Apply("Specchio");
    session.form2.showMaximized();
    ASSERT_TRUE(ComesToHold([this] { return session.form2.width() > 1200; }));
    Activate(session.form2);
    ExpectNotCoveredBy(session.form2);
    for (int i = 0; i < 2; ++i) {
        Do("windowraise " + Id(session.form2));
        ExpectNotCoveredBy(session.form2);
        EXPECT_TRUE(IsActive(session.form2));
    }
}

TEST_F(SmallWindows, AreNotCoveredThoughTheOrderWasOftenToldAgain)
{
    OpenSized(900, 700);
    Maximise(session.form2);
    Activate(session.form2);
    ExpectNotCoveredBy(session.form2);
    for (int i = 0; i < 4; ++i) {
        TellOrderAgain();
        QTest::qWait(TimeToAnswer);
    }
    Do("windowraise " + Id(session.form2));
    ExpectNotCoveredBy(session.form2);
}

TEST_F(SmallWindows, ComeAlongWhereLessThanHalfOfThemWouldBeSeen)
{
    OpenSized(600, 500);
    const QRect menus = session.form1.frameGeometry();
    for (const int left : {10, menus.width() / 2 - 40}) {
        session.form9.move(menus.x() + left, menus.y() - 100);
        EXPECT_TRUE(Stays([&] { return session.form9.x() == menus.x() + left; }));
        Do("windowraise " + Id(session.form9));
        EXPECT_TRUE(StaysOnceAnswered([this] { return IsAbove(session.form1, session.form9); }))
            << left;
    }
    session.form9.move(menus.center().x() + 40, menus.y() - 100);
    Cover(session.form1, session.form9);
    EXPECT_TRUE(RaisesWithFocus() ||
                StaysOnceAnswered([this] { return IsAbove(session.form9, session.form1); }));
}

TEST_F(SmallWindows, ComeAlongWhereALargeOneIsDrawnOverThem)
{
    OpenSized(300, 200);
    const QRect menus = session.form1.frameGeometry();
    Activate(session.form2);
    EXPECT_TRUE(StaysOnceAnswered([this] { return IsActive(session.form2); }));
    Do(QString("windowsize --sync %1 %2 %3")
           .arg(Id(session.form2))
           .arg(menus.right() + 50)
           .arg(menus.bottom() + 50));
    EXPECT_TRUE(ComesToHold([&] { return session.form2.frameGeometry().contains(menus); }));
    ExpectNotCoveredBy(session.form2);
}

TEST_F(SmallWindows, AreNotCoveredWhereTheyHangOffTheScreenEither)
{
    OpenSized(300, 200);
    const int bottom = session.form1.screen()->geometry().bottom();
    for (QWidget* const window : std::initializer_list<QWidget*>{&session.form1, &session.form10}) {
        window->move(window->x(), bottom - 25);
        Maximise(session.form2);
        Do("windowraise " + Id(session.form2));
        EXPECT_TRUE(StaysOnceAnswered([&] { return IsAbove(*window, session.form2); }))
            << window->objectName().toStdString();
        session.form2.showNormal();
        EXPECT_TRUE(Stays([&] { return session.form2.width() < 1000; }));
    }
}

TEST_F(SmallWindows, LeaveTheButtonsOfAMaximisedWindowInReach)
{
    for (QWidget* const large : std::initializer_list<QWidget*>{&session.form2, &session.form9}) {
        SCOPED_TRACE(large->objectName().toStdString());
        OpenSized(300, 200);
        session.form10.move(session.form10.x(), 0);
        EXPECT_TRUE(Stays([this] { return session.form10.y() == 0; }));
        Maximise(*large);
        EXPECT_GE(session.form10.y(), large->geometry().top());
        ExpectNotCoveredBy(*large);
        large->showNormal();
        EXPECT_TRUE(Stays([&] { return large->width() < 1000 && session.form10.y() == 0; }));
    }
}

TEST_F(SmallWindows, LeaveTheButtonsInReachWhenTheyComeBackLater)
{
    OpenSized(300, 200);
    session.form10.move(session.form10.x(), 0);
    EXPECT_TRUE(Stays([this] { return session.form10.y() == 0; }));
    const int top = session.form10.screen()->availableGeometry().top();
    const std::function<void()> waysToGo[] = {[this] { Minimise(session.form10); },
                                              [this] { session.form10.close(); }};
    for (const auto& go : waysToGo) {
        go();
        Maximise(session.form2);
        Apply("Specchio");
        EXPECT_TRUE(StaysOnceAnswered(
            [this] { return session.form10.isVisible() && !session.form10.isMinimized(); }));
        EXPECT_TRUE(StaysOnceAnswered([&] { return FramedGeometry(session.form10).y() > top; }));
        session.form2.showNormal();
        EXPECT_TRUE(StaysOnceAnswered([&] {
            return session.form2.width() < 1000 && FramedGeometry(session.form10).y() <= top;
        }));
    }
}

TEST_F(SmallWindows, StayWhereTheUserMovesThemMeanwhile)
{
    OpenSized(300, 200);
    session.form10.move(session.form10.x(), 0);
    EXPECT_TRUE(Stays([this] { return session.form10.y() == 0; }));
    Maximise(session.form2);
    const QPoint moved(session.form10.x() - 100, 400);
    session.form10.move(moved);
    EXPECT_TRUE(Stays([&] { return session.form10.pos() == moved; }));
    session.form2.showNormal();
    EXPECT_TRUE(StaysOnceAnswered(
        [&] { return session.form2.width() < 1000 && session.form10.pos() == moved; }));
}

TEST_F(SmallWindows, AreNeverCoveredByAWindowThatIsPressedOnceMore)
{
    OpenSized(2000, 2000);
    for (HeldWindow* const window :
         std::initializer_list<HeldWindow*>{&session.form2, &session.form9}) {
        Activate(*window);
        ExpectNotCoveredBy(*window);
        EXPECT_TRUE(IsActive(*window));
        const QRect frame = window->frameGeometry();
        const QPoint title(frame.center().x(), (frame.top() + window->geometry().top()) / 2);
        for (const QPoint place : {title, QPoint(60, 900), title, title}) {
            ClickAt(place);
            ExpectNotCoveredBy(*window);
            EXPECT_TRUE(IsActive(*window));
        }
    }
}

}  // namespace
}  // namespace pixano::test
