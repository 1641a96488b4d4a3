// The canvas window: the picture, pixel by pixel, in a sunken border. Knows no effect and no file.
#pragma once

#include "canvas/surface.h"
#include "windows/held_window.h"

#include <QFrame>

namespace pixano {

/// The picture box: paints the surface that it was given, in whatever state it is.
class PictureBox : public QFrame {
    Q_OBJECT

  public:
    /// `surface` outlives this widget.
    explicit PictureBox(const Surface& surface);

    /// The picture's place and size on each side of which the border takes this many pixels.
    static constexpr int Border = 2;

    /// Takes the size of the surface, with the border around it.
    void FitPicture();

  signals:
    void Clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    const Surface& surface_;
};

class Form2 : public HeldWindow {
    Q_OBJECT

  public:
    explicit Form2(const Surface& surface);

    PictureBox& Picture1() { return *picture1_; }

  private:
    PictureBox* picture1_;
};

}  // namespace pixano
