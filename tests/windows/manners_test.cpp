// What holds for every window of the program.
#include "support/program.h"

#include <QDialog>

namespace pixano::test {
namespace {

class HeldReturn : public Program {
  protected:
    /// The key goes down, or repeats because it is still down.
    static void Send(QWidget& window, int key, bool repeats)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, "\r", repeats);
        QApplication::sendEvent(&window, &event);
    }
};

TEST_F(HeldReturn, PressesAButtonOnce)
{
    Open("a.bmp", Drawn({"abc", "def"}));
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        const int before = session.doc.NumEffetti;
        for (const bool repeats : {false, true, true})
            Send(Button("SSCommand7"), key, repeats);
        EXPECT_EQ(session.doc.NumEffetti, before + 1);
    }
}

TEST_F(HeldReturn, AnswersNoQuestionThatComesMeanwhile)
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

}  // namespace
}  // namespace pixano::test
