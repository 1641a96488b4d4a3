// Which of the desktop's windows lies above which. Knows no window of the program.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace pixano {

/// The order of the windows as an X window manager tells it; other desktops tell nothing.
class Stacking : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

  public:
    Stacking();

    /// Whether `window` lies above `other`, both on the screen; so it is, too, when nothing is
    /// told.
    bool IsAbove(const QWidget& window, const QWidget& other) const;

    /// Raises the window at once: what a timer raises would wait for the next event of the display.
    static void Raise(QWidget& window);

    /// Puts the window just above the other one. The focus stays where it is, though some window
    /// managers give it to whatever raises itself.
    static void PutAbove(QWidget& window, const QWidget& other);

  signals:
    /// Windows were raised or lowered, and the window manager has come to rest. One that will not
    /// have another order tells the same whenever it is asked: that comes a few times only.
    void Changed();

  private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void AskAgain();

    QTimer calm_;
    quint32 property_ = 0;  ///< the number of the root window's property that lists the windows
    std::vector<WId> lowestFirst_;
    int same_ = 0;  ///< how often the order was told again that was known
};

}  // namespace pixano
