// The preview window: a copy of the picture at the preview's scale. Knows neither canvas nor files.
#pragma once

#include "canvas/surface.h"
#include "windows/held_window.h"

#include <QWidget>

namespace pixano {

/// An image that is shown as it is, or stretched to the widget.
class ImageControl : public QWidget {
    Q_OBJECT

  public:
    ImageControl();

    /// Shows another picture. Unless it stretches, the control takes the picture's size.
    void SetPicture(Surface&& picture);
    /// A copy, in the place of the picture before it where that had the same size.
    void SetPicture(const Surface& picture);
    void SetStretch(bool stretch);
    const Surface& Picture() const { return picture_; }
    bool Stretch() const { return stretch_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Changed();
    void PaintShrunk(QPainter& painter, QSize whole, const QRect& part) const;

    Surface picture_;
    bool stretch_ = false;
};

class Form9 : public HeldWindow {
    Q_OBJECT

  public:
    Form9();

    ImageControl& Image1() { return *image1_; }

    /// Gives the image this size, stretched, and the window too. What is seen in the middle stays
    /// there.
    void Stretch(QSize size);

  signals:
    /// The wheel was turned to enlarge what is seen, or to reduce it.
    void Zoomed(bool larger);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    /// What the wheel was turned, less than a notch.
    int turned_ = 0;
    QPoint dragged_;
    ImageControl* image1_;
};

}  // namespace pixano
