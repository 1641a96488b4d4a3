// Lets the arrow keys walk among a window's buttons as the eye does.
#pragma once

#include <QObject>

class QPushButton;
class QWidget;

namespace pixano {

class ArrowKeys : public QObject {
  public:
    /// For the buttons that the window has by now; it takes charge of this object.
    explicit ArrowKeys(QWidget& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The nearest button that can be pressed in the arrow's direction, of the same row when it
    /// leads along one; null when there is none.
    QPushButton* NextTo(const QPushButton& from, int key) const;
    QPoint Middle(const QPushButton& button) const;

    QWidget& window_;
};

}  // namespace pixano
