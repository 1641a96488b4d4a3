// What the information windows share: their place in the middle of the screen, their empty titles.
#pragma once

#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace pixano {

/// Moves the window, at the size that its contents ask for, to the middle of the screen.
inline void Centre(QWidget& window)
{
    window.adjustSize();
    const QRect screen = window.screen()->geometry();
    window.move(screen.topLeft() + QPoint(qRound((screen.width() - window.width()) / 2.0),
                                          qRound((screen.height() - window.height()) / 2.0)));
}

/// Keeps the title bar of a window without a caption empty, where the desktop would put the
/// program's name. To be called once the window is shown.
inline void ShowNoTitle(QWidget& window)
{
    window.windowHandle()->setTitle(QStringLiteral(" "));
}

}  // namespace pixano
