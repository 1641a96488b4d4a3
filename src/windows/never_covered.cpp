#include "windows/never_covered.h"

#include "windows/free_screen.h"

#include <QApplication>
#include <QEvent>
#include <QRegion>
#include <QScreen>
#include <QTimer>
#include <QWindow>

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
    return inside.isEmpty() ? FramedGeometry(window) & screen : inside;
}

/// Moves the window with its frame. The widget would not move to where it believes to be already,
/// before it has heard of its frame.
void PlaceFrame(const QWidget& window, QPoint place)
{
    window.windowHandle()->setFramePosition(place);
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
    for (const std::vector<QWidget*>& windows : {small_, large_})
        for (QWidget* const window : windows)
            window->installEventFilter(this);
    connect(&stacking_, &Stacking::Changed, this, &NeverCovered::RaiseCovered);
}

void NeverCovered::BringAbove(QWidget& lower, const QWidget& upper) const
{
    if (stacking_.IsAbove(upper, lower)) Stacking::PutAbove(lower, upper);
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
            seen -= FramedGeometry(*larger);
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
    for (QWidget* const window : small_) {
        const QRect framed = FramedGeometry(*window);
        if (!IsOnScreen(*window) || !framed.intersects(title)) continue;
        const QPoint below(framed.x(), title.bottom() + 1);
        givenWay_.push_back({window, framed.topLeft(), below});
        PlaceFrame(*window, below);
    }
}

void NeverCovered::ReturnToPlaces()
{
    for (const GivenWay& moved : std::exchange(givenWay_, {}))
        if (FramedGeometry(*moved.window).topLeft() == moved.to)
            PlaceFrame(*moved.window, moved.from);
}

void NeverCovered::LeaveTitlesFree()
{
    for (const QWidget* const window : large_)
        if (IsOnScreen(*window) && window->isMaximized()) LeaveTitleFree(*window);
}

bool NeverCovered::eventFilter(QObject* watched, QEvent* event)
{
    constexpr int UntilFramed = 200;
    const bool large = std::ranges::find(large_, watched) != large_.end();
    const QEvent::Type type = event->type();
    if (large && (type == QEvent::Move || type == QEvent::Resize)) RaiseCovered();
    if (large && type == QEvent::WindowStateChange) {
        LeaveTitlesFree();
        if (std::ranges::none_of(large_, &QWidget::isMaximized)) ReturnToPlaces();
    }
    if (!large && type == QEvent::Show)
        QTimer::singleShot(UntilFramed, this, &NeverCovered::LeaveTitlesFree);
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
