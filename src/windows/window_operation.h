// What several commands do to a window to put it before the user.
#pragma once

#include <QWidget>

namespace pixano {

/// Shows the window, also where it is minimised, and leaves the focus where it is unless it was.
inline void ShowAgain(QWidget& window)
{
    const bool minimised = window.isMinimized();
    if (minimised) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    // Some window managers leave it minimised otherwise.
    if (minimised) window.activateWindow();
}

/// Shows the window above the others, and leaves the focus where it is.
inline void ShowInFront(QWidget& window)
{
    ShowAgain(window);
    window.raise();
}

/// Where raising the other window takes the focus from this one, as some window managers do a
/// moment later, this one takes it back, unless the other one was brought forward meanwhile.
void KeepFocus(QWidget& window, QWidget& raised);

/// Shows the window, brings it to the front and gives it the focus.
void BringForward(QWidget& window);

/// A window that is about to be shown opens on the screen that holds `main`.
inline void OpenOnScreenOf(const QWidget& main, QWidget& window)
{
    if (!window.isVisible()) window.setScreen(main.screen());
}

}  // namespace pixano
