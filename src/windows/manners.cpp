#include "windows/manners.h"

#include "windows/window_operation.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>

namespace pixano {
namespace {

void BringBackIfMinimised(QObject& changed)
{
    auto* const window = qobject_cast<QWidget*>(&changed);
    if (window == nullptr || !window->isModal() || !window->isMinimized()) return;
    // Not before the toolkit has taken note of it.
    QTimer::singleShot(0, window, [window] { BringForward(*window); });
}

/// The window itself would be placed by the frame that it had when it was last moved.
void BringDownIfAboveScreen(QWindow& window)
{
    const int top = window.screen()->availableGeometry().top();
    const QPoint place = window.framePosition();
    if (place.y() < top) window.setFramePosition({place.x(), top});
}

/// Of its frame, which makes it higher, the toolkit knows only once the window is there.
void KeepTitleOnScreen(QObject& shown)
{
    constexpr int UntilFramed = 200;
    auto* const window = qobject_cast<QWidget*>(&shown);
    if (window == nullptr || !window->isModal()) return;
    QTimer::singleShot(UntilFramed, window->windowHandle(),
                       [window] { BringDownIfAboveScreen(*window->windowHandle()); });
}

bool ActsOnceOnly(const QKeyEvent& event, const QObject& watched)
{
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isCharacter = event.key() < Qt::Key_Escape;
    return isReturn || (isCharacter && qobject_cast<const QMenu*>(&watched) != nullptr);
}

}  // namespace

Manners::Manners()
{
    qApp->installEventFilter(this);
}

bool Manners::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) BringBackIfMinimised(*watched);
    if (event->type() == QEvent::Show && !event->spontaneous()) KeepTitleOnScreen(*watched);
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.isAutoRepeat() && ActsOnceOnly(key, *watched)) return true;
    }
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    if ((pressed || event->type() == QEvent::MouseButtonDblClick) && watched->isWindowType() &&
        IsLeftOver(*static_cast<QWindow*>(watched), *static_cast<QMouseEvent*>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool Manners::IsLeftOver(const QWindow& window, const QMouseEvent& press)
{
    // The toolkit tells of a double click after the press itself.
    if (press.type() == QEvent::MouseButtonDblClick) return last_.leftOver;
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const QPoint place = press.globalPosition().toPoint();
    const bool gone = last_.window == nullptr || !last_.window->isVisible();
    const bool soon =
        press.timestamp() - last_.time < static_cast<quint64>(hints.mouseDoubleClickInterval());
    const bool near = (place - last_.place).manhattanLength() <= hints.mouseDoubleClickDistance();
    last_ = {&window, press.timestamp(), place, gone && soon && near};
    return last_.leftOver;
}

}  // namespace pixano
