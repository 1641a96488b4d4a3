// What holds for every window of the program.
#include "support/program.h"
#include "windows/manners.h"

#include <QDialog>
#include <QMenu>
#include <QStyleHints>

namespace pixano::test {
namespace {

class HeldKey : public Program {
  protected:
    /// The key goes down, or repeats because it is still down.
    static void Send(QWidget& window, int key, bool repeats)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, "\r", repeats);
        QApplication::sendEvent(&window, &event);
    }
};

TEST_F(HeldKey, PressesAButtonOnce)
{
    Open("a.bmp", Drawn({"abc", "def"}));
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        const int before = session.doc.NumEffetti;
        for (const bool repeats : {false, true, true})
            Send(Button("SSCommand7"), key, repeats);
        EXPECT_EQ(session.doc.NumEffetti, before + 1);
    }
}

TEST_F(HeldKey, ChoosesNothingInTheMenuThatItHasOpened)
{
    Open("a.bmp", Drawn({"abc"}));
    auto& menu = *session.form1.findChild<QMenu*>("Effetti");
    menu.popup({});
    for (const bool repeats : {true, false}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_E, Qt::AltModifier, "e", repeats);
        QApplication::sendEvent(&menu, &event);
        EXPECT_EQ(menu.activeAction() == nullptr, repeats);
    }
    // An arrow walks on.
    const QAction* const before = menu.activeAction();
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&menu, &up);
    EXPECT_NE(menu.activeAction(), before);
    menu.close();
}

TEST_F(HeldKey, AnswersNoQuestionThatComesMeanwhile)
{
    QDialog question;
    auto* const answer = new QPushButton("OK", &question);
    answer->setDefault(true);
    QObject::connect(answer, &QPushButton::clicked, &question, &QDialog::accept);
    question.show();
    Send(question, Qt::Key_Return, true);
    EXPECT_TRUE(question.isVisible());
    Send(question, Qt::Key_Return, false);
    EXPECT_FALSE(question.isVisible());
}

/// Presses of the mouse on one window after another.
class SecondPress : public testing::Test {
  protected:
    /// Counts the presses that reach it.
    class Window : public QWindow {
      public:
        int presses = 0;

      protected:
        void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
        void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++presses; }
    };

    static void Send(QWindow& window, QEvent::Type type, QPointF place, quint64 time)
    {
        QMouseEvent event(type, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(&window, &event);
    }
    /// How many of the second click's two presses reach the window behind.
    int Reach(bool closes, QPointF secondPlace, quint64 later)
    {
        constexpr quint64 Begin = 5000;
        behind.presses = 0;
        behind.show();
        front.show();
        Send(front, QEvent::MouseButtonPress, {100, 100}, Begin);
        if (closes) front.close();
        Send(behind, QEvent::MouseButtonPress, secondPlace, Begin + later);
        Send(behind, QEvent::MouseButtonDblClick, secondPlace, Begin + later);
        return behind.presses;
    }

    const quint64 interval =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const Manners manners;
    Window behind;
    Window front;
};

TEST_F(SecondPress, ReachesNothingWhereTheFirstHasClosedItsWindow)
{
    EXPECT_EQ(Reach(true, {100, 100}, 80), 0);
    EXPECT_EQ(Reach(true, {103, 102}, interval - 1), 0);
    // A third one does.
    Send(behind, QEvent::MouseButtonPress, {100, 100}, 5000 + interval);
    EXPECT_EQ(behind.presses, 1);
}

TEST_F(SecondPress, ReachesTheWindowWhereItIsAClickOfItsOwn)
{
    EXPECT_EQ(Reach(false, {100, 100}, 80), 2) << "both windows are there";
    EXPECT_EQ(Reach(true, {103, 103}, 80), 2) << "elsewhere";
    EXPECT_EQ(Reach(true, {100, 100}, interval), 2) << "later";
}

TEST_F(SecondPress, ReachesNothingWhereTheFirstWindowWasDeleted)
{
    auto other = std::make_unique<Window>();
    other->show();
    Send(*other, QEvent::MouseButtonPress, {100, 100}, 5000);
    other.reset();
    behind.show();
    Send(behind, QEvent::MouseButtonPress, {100, 100}, 5080);
    EXPECT_EQ(behind.presses, 0);
}

TEST_F(Program, BringsWhatAsksAboveTheScreenDownOntoIt)
{
    for (const bool modal : {true, false}) {
        QDialog window;
        window.setModal(modal);
        window.move(40, -60);
        window.show();
        EXPECT_EQ(QTest::qWaitFor([&] { return window.y() == 0; }, 400), modal) << window.y();
        EXPECT_EQ(window.x(), 40);
    }
}

}  // namespace
}  // namespace pixano::test
