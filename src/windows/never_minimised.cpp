#include "windows/never_minimised.h"

#include "windows/window_operation.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace pixano {

NeverMinimised::NeverMinimised()
{
    qApp->installEventFilter(this);
}

bool NeverMinimised::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange && watched->isWidgetType()) {
        auto* const window = static_cast<QWidget*>(watched);
        // Not before the toolkit has taken note of it.
        if (window->isModal() && window->isMinimized())
            QTimer::singleShot(0, window, [window] { BringForward(*window); });
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
