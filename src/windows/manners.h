// What holds for every window of the program, whichever it is. Knows no window by name.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWindow>

class QMouseEvent;

namespace pixano {

/// As long as it lives:
/// - A modal window that is minimised comes back: behind it no other window takes a click, and the
///   program would seem dead. A window manager may offer to minimise it whatever it is asked for.
/// - One that appears above the upper edge of its screen, as window managers place high ones over
///   their parents, comes down: by its title it is moved, and out of the way.
/// - The return key does once what it does, however long it is held down: what it starts may take
///   seconds, and would be started again for every time that the key has repeated meanwhile.
/// - So does a letter in a menu: the one that has opened it would choose an entry of it.
/// - A double click is one click where the first has closed the window: the second would fall on
///   what lies behind, and start that.
class Manners : public QObject {
    Q_OBJECT

  public:
    Manners();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Whether the press belongs to the one before, which has closed its window.
    bool IsLeftOver(const QWindow& window, const QMouseEvent& press);

    /// The last press of a button of the mouse.
    struct Press {
        QPointer<const QWindow> window;
        quint64 time = 0;  ///< in milliseconds
        QPoint place;
        bool leftOver = false;
    };
    Press last_;
};

}  // namespace pixano
