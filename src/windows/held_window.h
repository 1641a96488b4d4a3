// A window of a stated inside size that holds one widget; larger than the screen it is held to it
// and scrolls.
#pragma once

#include <QElapsedTimer>
#include <QScrollArea>

#include <functional>
#include <optional>

namespace pixano {

class HeldWindow : public QScrollArea {
    Q_OBJECT

  public:
    explicit HeldWindow(QWidget* inside);

    /// Gives the window's inside this size in pixels. Where the free screen is smaller it is held
    /// to what `leftFree` and `titleFree` leave of that. A window that would grow off the screen
    /// gives way, and goes back to its place when it is smaller again.
    void SetInside(QSize size);
    /// The inside that it would then have, in pixels.
    QSize Held(QSize size) const;

    /// Moves the window there.
    void PlaceAt(QPoint place);
    /// Whether the user has moved it since.
    bool MovedByUser() const { return moved_ || StandsElsewhere(); }

    /// What a window that is held leaves free beside it, for another one.
    int leftFree = 0;
    /// The window whose title a window that is held leaves free above it.
    const QWidget* titleFree = nullptr;
    /// Whether it leaves that free where the screen is large enough for it, too.
    bool alwaysBelow = false;

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// The second press of two quick ones is a press like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    /// Whether it stands elsewhere than the program has put it.
    bool StandsElsewhere() const { return !placed_ || pos() != *placed_; }
    /// What it has of the free screen, with its frame.
    QRect Room(bool held) const;
    /// What it is kept within when its size changes: where it is wider it begins at the left.
    QRect RoomToGrow() const;
    bool IsHeld() const { return width() < stated_.width() || height() < stated_.height(); }
    /// Whether the window manager may not have answered yet.
    bool IsSettling() const;
    /// Asks once more when it does not stand there by then.
    void WaitForAnswer();
    /// Asks the window manager for place and size once more.
    void AskAgain();
    void LetItsSizeChange();
    /// Scroll bars would take their place from a window that is exactly as large as it should be.
    void ShowBarsOnlyWhenHeld();

    QSize stated_;
    std::optional<QPoint> placed_;  ///< where the program has put it
    QPoint home_;                   ///< where it belongs: there, but for what it gives way
    bool moved_ = false;
    QElapsedTimer sincePlaced_;
};

}  // namespace pixano
