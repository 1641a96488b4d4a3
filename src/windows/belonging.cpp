#include "windows/belonging.h"

#include <QGuiApplication>
#include <QWindow>

namespace pixano {

bool DesktopAloneArranges()
{
    return QGuiApplication::platformName().startsWith("wayland");
}

void BelongTo(QWidget& owner, QWidget& window)
{
    if (!DesktopAloneArranges()) return;
    // Whose window it is, is told to the desktop when it is shown.
    const bool shown = window.isVisible();
    window.hide();
    window.winId();
    window.windowHandle()->setTransientParent(owner.windowHandle());
    window.setVisible(shown);
}

}  // namespace pixano
