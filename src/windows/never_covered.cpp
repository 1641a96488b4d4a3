#include "windows/never_covered.h"

#include "windows/window_operation.h"

#include <QApplication>
#include <QEvent>
#include <QRegion>

#include <algorithm>
#include <utility>

namespace pixano {
namespace {

bool IsOnScreen(const QWidget& window)
{
    return window.isVisible() && !window.isMinimized();
}

}  // namespace

NeverCovered::NeverCovered(std::vector<QWidget*> small, std::vector<QWidget*> large)
    : small_(std::move(small)), large_(std::move(large))
{
    for (QWidget* const window : large_)
        window->installEventFilter(this);
}

void NeverCovered::RaiseCovered() const
{
    QRegion covered;
    for (const QWidget* const window : large_)
        if (IsOnScreen(*window)) covered += window->frameGeometry();
    QWidget* const used = QApplication::activeWindow();
    for (QWidget* const window : small_)
        if (IsOnScreen(*window) &&
            covered.intersected(window->frameGeometry()) == QRegion(window->frameGeometry())) {
            window->raise();
            // One of the large ones, though, would come to the front with the focus once more.
            if (used != window && std::ranges::find(small_, used) != small_.end())
                KeepFocus(*used, *window);
        }
}

bool NeverCovered::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::WindowActivate:
    case QEvent::Move:
    case QEvent::Resize:
        RaiseCovered();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
