#include "windows/held_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QWindow>

namespace pixano {

HeldWindow::HeldWindow(QWidget* inside)
{
    setWidget(inside);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMinimumSize(1, 1);
    setFocusPolicy(Qt::StrongFocus);
}

void HeldWindow::SetInside(QSize size)
{
    stated_ = size.expandedTo(QSize(1, 1));
    resize(stated_.boundedTo(FreeScreen()));
    ShowBarsOnlyWhenHeld();
}

QSize HeldWindow::FreeScreen() const
{
    // A frame that is not there yet is taken to be as wide as common ones are.
    constexpr QMargins UsualFrame(4, 30, 4, 4);
    const QMargins known = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
    const QSize available = screen()->availableGeometry().size();
    return available.shrunkBy(known.isNull() ? UsualFrame : known).expandedTo(QSize(1, 1));
}

void HeldWindow::ShowBarsOnlyWhenHeld()
{
    setHorizontalScrollBarPolicy(width() < stated_.width() ? Qt::ScrollBarAsNeeded
                                                           : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(height() < stated_.height() ? Qt::ScrollBarAsNeeded
                                                           : Qt::ScrollBarAlwaysOff);
}

void HeldWindow::resizeEvent(QResizeEvent* event)
{
    ShowBarsOnlyWhenHeld();
    QScrollArea::resizeEvent(event);
}

void HeldWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

}  // namespace pixano
