// A window of a stated inside size that holds one widget; larger than the screen it is held to it
// and scrolls.
#pragma once

#include <QScrollArea>

#include <functional>

namespace pixano {

class HeldWindow : public QScrollArea {
    Q_OBJECT

  public:
    explicit HeldWindow(QWidget* inside);

    /// Gives the window's inside this size in pixels, or that of the free screen where it is
    /// smaller.
    void SetInside(QSize size);

    /// What a window that is wider than the screen leaves free beside it, for another one.
    int leftFree = 0;

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QSize Held() const;
    /// Scroll bars would take their place from a window that is exactly as large as it should be.
    void ShowBarsOnlyWhenHeld();

    QSize stated_;
};

}  // namespace pixano
