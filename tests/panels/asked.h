// What a test does in a modal window while the program waits for it to close.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace pixano::test {

/// Once a modal window is up, lets `act` do something in it, then makes sure that it is closed.
inline void WhileAsked(const std::function<void(QWidget&)>& act)
{
    QTimer::singleShot(0, [act] {
        QWidget* const modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr) << "the program opened no modal window";
        act(*modal);
        if (modal == QApplication::activeModalWidget()) modal->close();
    });
}

/// Clicks the button of that name in the window.
inline void ClickButton(const QWidget& window, const char* name)
{
    auto* const button = window.findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    ASSERT_TRUE(button->isEnabled()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

}  // namespace pixano::test
