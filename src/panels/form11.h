// The slider window: one strength, moved by the user. Knows neither where it is kept nor what for.
#pragma once

#include "panels/typed_slider.h"

#include <QDialog>
#include <QLabel>

namespace pixano {

class Form11 : public QDialog {
    Q_OBJECT

  public:
    /// Captioned with the effect's name; opens just below the title of `palette`.
    Form11(const QString& effect, const QWidget& palette);

    /// Shows the strength and puts the slider there. One outside the slider's range puts it at its
    /// nearer end, which counts as a move.
    void ShowStrength(double value);

  signals:
    /// The window got another size, or its first one.
    void Resized();
    /// The slider moved to that position, by whatever hand.
    void Moved(int value);
    void Confirmed();

  protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void BuildSlider();
    /// Leaves the part of the window that lies beyond the screen's right edge empty: a long title
    /// makes it wider than the palette that it opens on, and not every desktop moves it back.
    void StayOnScreen();
    void TakePosition(int value);

    TypedSlider* slider1_;
    QLabel* label1_;
};

}  // namespace pixano
