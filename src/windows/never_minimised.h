// Keeps windows that wait for an answer on the screen. Knows not what they ask.
#pragma once

#include <QObject>

namespace pixano {

/// A modal window that is minimised comes back: behind it no other window takes a click, and the
/// program would seem dead. A window manager may offer to minimise it whatever it is asked for.
class NeverMinimised : public QObject {
    Q_OBJECT

  public:
    NeverMinimised();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace pixano
