#include "windows/manners.h"

#include "windows/window_operation.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace pixano {
namespace {

void BringBackIfMinimised(QObject& changed)
{
    auto* const window = qobject_cast<QWidget*>(&changed);
    if (window == nullptr || !window->isModal() || !window->isMinimized()) return;
    // Not before the toolkit has taken note of it.
    QTimer::singleShot(0, window, [window] { BringForward(*window); });
}

bool IsRepeatedReturn(const QKeyEvent& event)
{
    return event.isAutoRepeat() && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

}  // namespace

Manners::Manners()
{
    qApp->installEventFilter(this);
}

bool Manners::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) BringBackIfMinimised(*watched);
    if (event->type() == QEvent::KeyPress && IsRepeatedReturn(*static_cast<QKeyEvent*>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
