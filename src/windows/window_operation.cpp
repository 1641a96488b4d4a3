#include "windows/window_operation.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace pixano {
namespace {

/// For a moment the window takes the focus back from its parent, as often as that gets it.
class Keeper : public QObject {
  public:
    static constexpr auto Name = "FocusKeeper";

    Keeper(QWidget& window, QWidget& raised) : QObject(&raised), window_(window)
    {
        constexpr int Settling = 300;
        setObjectName(Name);
        QTimer::singleShot(Settling, this, &QObject::deleteLater);
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Keeper::TakeBack);
    }
    QWidget& Window() const { return window_; }

  private:
    void TakeBack(const QWindow* now)
    {
        const auto* const raised = static_cast<QWidget*>(parent());
        if (now != nullptr && now == raised->windowHandle() && window_.isVisible())
            window_.activateWindow();
    }

    QWidget& window_;
};

Keeper* KeeperFrom(const QWidget& raised)
{
    return static_cast<Keeper*>(
        raised.findChild<QObject*>(Keeper::Name, Qt::FindDirectChildrenOnly));
}

}  // namespace

void KeepFocus(QWidget& window, QWidget& raised)
{
    delete KeeperFrom(raised);
    new Keeper(window, raised);
}

QWidget* FocusKeeperOf(const QWidget& raised)
{
    const Keeper* const keeper = KeeperFrom(raised);
    return keeper == nullptr ? nullptr : &keeper->Window();
}

void BringForward(QWidget& window)
{
    delete KeeperFrom(window);
    ShowInFront(window);
    window.activateWindow();
}

}  // namespace pixano
