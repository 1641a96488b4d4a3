// A slider whose value can also be typed, digit by digit. Knows nothing of what the value means.
#pragma once

#include <QSlider>

namespace pixano {

/// Besides arrows, page keys, wheel and mouse: what is typed makes up the value, until the slider
/// moves otherwise. Separators of thousands are passed over, what follows a decimal comma or point
/// does not count, a number beyond the range becomes its nearer end, and the backspace key takes
/// the last character away.
class TypedSlider : public QSlider {
    Q_OBJECT

  public:
    explicit TypedSlider(Qt::Orientation orientation) : QSlider(orientation) {}

  signals:
    /// The number being typed is that now; empty when none is.
    void Typed(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Take(const QString& text);
    void Forget();

    QString text_;
    bool taking_ = false;
};

}  // namespace pixano
