// A slider whose value can also be typed, digit by digit. Knows nothing of what the value means.
#pragma once

#include <QElapsedTimer>
#include <QSlider>

namespace pixano {

/// Besides arrows, page keys, wheel and mouse: digits that follow one another within a second make
/// up the value, held to the slider's range; the backspace key takes the value's last digit away.
class TypedSlider : public QSlider {
    Q_OBJECT

  public:
    explicit TypedSlider(Qt::Orientation orientation) : QSlider(orientation) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Append(int digit);

    QElapsedTimer sinceDigit_;
};

}  // namespace pixano
