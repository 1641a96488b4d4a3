// What holds for every window of the program.
#include "support/program.h"

#include <QDialog>
#include <QMenu>

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
