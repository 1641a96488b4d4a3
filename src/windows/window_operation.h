// What several commands do to a window to put it before the user.
#pragma once

#include <QWidget>

namespace pixano {

/// Shows the window, brings it to the front and gives it the focus.
inline void BringForward(QWidget& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace pixano
