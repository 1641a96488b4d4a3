#include "windows/never_covered.h"

#include "windows/free_screen.h"

#include <QApplication>
#include <QEvent>
#include <QRegion>
#include <QScreen>

#include <algorithm>
#include <numeric>
#include <utility>

namespace pixano {
namespace {

bool IsOnScreen(const QWidget& window)
{
    return window.isVisible() && !window.isMinimized();
}

/// What is to be seen of it: without its frame, as long as any of that is on the screen.
QRect InsideOnScreen(const QWidget& window)
{
    const QRect screen = window.screen()->virtualGeometry();
    const QRect inside = window.geometry() & screen;
    return inside.isEmpty() ? window.frameGeometry() & screen : inside;
}

int AreaOf(const QRegion& region)
{
    return std::accumulate(region.begin(), region.end(), 0, [](int area, const QRect& part) {
        return area + part.width() * part.height();
    });
}

}  // namespace

NeverCovered::NeverCovered(std::vector<QWidget*> small, std::vector<QWidget*> large)
    : small_(std::move(small)), large_(std::move(large))
{
    for (QWidget* const window : large_)
        window->installEventFilter(this);
    connect(&stacking_, &Stacking::Changed, this, &NeverCovered::RaiseCovered);
}

void NeverCovered::RaiseCovered() const
{
    for (QWidget* const window : small_) {
        if (!IsOnScreen(*window)) continue;
        const QRect whole = InsideOnScreen(*window);
        QRegion seen = whole;
        const QWidget* highest = nullptr;
        for (const QWidget* const larger : large_) {
            if (!IsOnScreen(*larger) || !stacking_.IsAbove(*larger, *window)) continue;
            seen -= larger->frameGeometry();
            if (highest == nullptr || stacking_.IsAbove(*larger, *highest)) highest = larger;
        }
        if (2 * AreaOf(seen) >= AreaOf(whole)) continue;
        Stacking::PutAbove(*window, *highest);
        // What waits for an answer stays above them all.
        if (QWidget* const waiting = QApplication::activeModalWidget()) Stacking::Raise(*waiting);
    }
}

void NeverCovered::LeaveTitleFree(const QWidget& maximised)
{
    QRect title = maximised.screen()->availableGeometry();
    title.setHeight(FrameOf(maximised).top());
    // A minimised one too: it comes back where it was.
    for (QWidget* const window : small_)
        if (window->isVisible() && window->frameGeometry().intersects(title)) {
            const QPoint below(window->x(), title.bottom() + 1);
            givenWay_.push_back({window, window->pos(), below});
            window->move(below);
        }
}

void NeverCovered::ReturnToPlaces()
{
    for (const GivenWay& moved : std::exchange(givenWay_, {}))
        if (moved.window->pos() == moved.to) moved.window->move(moved.from);
}

bool NeverCovered::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) RaiseCovered();
    if (event->type() == QEvent::WindowStateChange) {
        const auto& window = static_cast<const QWidget&>(*watched);
        if (window.isMaximized())
            LeaveTitleFree(window);
        else if (std::ranges::none_of(large_, &QWidget::isMaximized))
            ReturnToPlaces();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
