// What a person does in the modal windows that come up.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimerEvent>
#include <QVariant>

#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace pixano::test {

/// Lets a step be done in each modal window that comes up, one after the other.
class ModalSteps : public QObject {
  public:
    using Step = std::function<void(QDialog&)>;

    explicit ModalSteps(std::deque<Step> steps) : steps_(std::move(steps)) { startTimer(0); }
    ~ModalSteps() override { EXPECT_TRUE(steps_.empty()) << "a box did not come"; }
    ModalSteps(const ModalSteps&) = delete;
    ModalSteps& operator=(const ModalSteps&) = delete;

  protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog->property("seen").toBool()) return;
        dialog->setProperty("seen", true);
        ASSERT_FALSE(steps_.empty()) << dialog->windowTitle().toStdString();
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        step(*dialog);
        // A box that did not go must not hold the test up.
        if (dialog->isVisible()) dialog->done(0);
    }

  private:
    std::deque<Step> steps_;
};

}  // namespace pixano::test
