#include "windows/held_window.h"

#include "windows/free_screen.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace pixano {
namespace {

/// How long a window manager may take to answer, in milliseconds.
constexpr int AnswerTime = 300;

}  // namespace

HeldWindow::HeldWindow(QWidget* inside)
{
    setWidget(inside);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFocusPolicy(Qt::StrongFocus);
    // A window manager would take the focus from whatever a command ends with.
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void HeldWindow::SetInside(QSize size)
{
    stated_ = size.expandedTo(QSize(1, 1));
    const QSize before = this->size();
    if (StandsElsewhere() && !IsSettling()) {
        home_ = pos();
        moved_ = true;
    }
    const QSize held = Held(stated_);
    LetItsSizeChange();
    resize(held);
    ShowBarsOnlyWhenHeld();
    if (isVisible() && this->size() != before) {
        const QPoint place = PlaceWithin(RoomToGrow(), *this, home_);
        if (place != pos()) move(place);
        placed_ = place;
    }
    if (IsSettling()) {
        // What the window manager makes of a window that has only just appeared comes yet.
        WaitForAnswer();
        return;
    }
    placed_ = pos();
    sincePlaced_.invalidate();
}

QRect HeldWindow::Room(bool held) const
{
    QRect room = screen()->availableGeometry();
    if (held) room.setRight(room.right() - leftFree);
    if (titleFree != nullptr && titleFree->isVisible() && (held || alwaysBelow))
        room.setTop(std::max(room.top(), titleFree->y() + RoomForFrame(*titleFree).top()));
    return room;
}

QRect HeldWindow::RoomToGrow() const
{
    QRect room = Room(IsHeld());
    room.setRight(Room(true).right());
    return room;
}

QSize HeldWindow::Held(QSize size) const
{
    const auto most = [this](bool held) {
        return Room(held).size().shrunkBy(RoomForFrame(*this)).expandedTo({1, 1});
    };
    const bool fits = size.boundedTo(most(false)) == size;
    return fits ? size : size.boundedTo(most(true));
}

void HeldWindow::PlaceAt(QPoint place)
{
    placed_ = place;
    home_ = place;
    moved_ = false;
    WaitForAnswer();
    move(place);
}

/// A window manager that puts its frame around the window later shifts it without a word.
void HeldWindow::WaitForAnswer()
{
    sincePlaced_.start();
    QTimer::singleShot(AnswerTime, this, [this] {
        if (StandsElsewhere()) AskAgain();
    });
}

bool HeldWindow::IsSettling() const
{
    return sincePlaced_.isValid() && sincePlaced_.elapsed() < AnswerTime;
}

/// Some window managers choose the place of a window that appears without the focus, whatever was
/// asked; they are asked again then. Later it is the user who moves it.
void HeldWindow::moveEvent(QMoveEvent* event)
{
    QScrollArea::moveEvent(event);
    if (placed_ && pos() != *placed_ && IsSettling())
        QTimer::singleShot(0, this, &HeldWindow::AskAgain);
}

/// Of its size too: a move alone would ask for the size that was last heard of.
void HeldWindow::AskAgain()
{
    resize(Held(stated_));
    move(*placed_);
}

/// Held in one direction, the bar there takes its room from the other one, which then needs its
/// own.
void HeldWindow::ShowBarsOnlyWhenHeld()
{
    const auto bars = IsHeld() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(bars);
    setVerticalScrollBarPolicy(bars);
}

void HeldWindow::resizeEvent(QResizeEvent* event)
{
    ShowBarsOnlyWhenHeld();
    QScrollArea::resizeEvent(event);
}

/// Some window managers maximise a window that appears nearly as large as the screen, over what it
/// leaves free beside it. One of a fixed size they leave alone.
void HeldWindow::showEvent(QShowEvent* event)
{
    constexpr int Appearing = 1000;
    QScrollArea::showEvent(event);
    const QSize screen = this->screen()->availableSize();
    const bool large = 4 * width() * height() > 3 * screen.width() * screen.height();
    if (event->spontaneous() || !large) return;
    windowHandle()->setMinimumSize(size());
    windowHandle()->setMaximumSize(size());
    QTimer::singleShot(Appearing, this, &HeldWindow::LetItsSizeChange);
}

void HeldWindow::LetItsSizeChange()
{
    if (windowHandle() == nullptr) return;
    windowHandle()->setMinimumSize(minimumSize());
    windowHandle()->setMaximumSize(maximumSize());
}

/// Some window managers draw the frame anew for another title, and lose what was painted inside
/// meanwhile: it is painted once more.
void HeldWindow::changeEvent(QEvent* event)
{
    constexpr int UntilDrawn = 200;
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange)
        QTimer::singleShot(UntilDrawn, widget(), qOverload<>(&QWidget::update));
}

void HeldWindow::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ShiftModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    // The same turn without the key: with it the bar would move by whole pages.
    QWheelEvent sideways(event->position(), event->globalPosition(),
                         event->pixelDelta().transposed(), event->angleDelta().transposed(),
                         event->buttons(), Qt::NoModifier, event->phase(), event->inverted());
    QCoreApplication::sendEvent(horizontalScrollBar(), &sideways);
    event->accept();
}

void HeldWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

}  // namespace pixano
