#include "windows/held_window.h"

#include "windows/free_screen.h"

#include <QCloseEvent>

#include <algorithm>

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
    const QSize before = this->size();
    resize(Held());
    ShowBarsOnlyWhenHeld();
    // Grown where it stands, it would grow off the screen.
    if (isVisible() && this->size() != before) KeepOnScreen(*this);
}

QSize HeldWindow::Held() const
{
    QSize most = LargestInside(*this);
    if (stated_.width() > most.width()) most.setWidth(std::max(most.width() - leftFree, 1));
    return stated_.boundedTo(most);
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
