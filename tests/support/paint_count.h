// Counts how often a widget paints itself.
#pragma once

#include <QEvent>
#include <QWidget>

namespace pixano::test {

class PaintCount : public QObject {
  public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) ++count;
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace pixano::test
