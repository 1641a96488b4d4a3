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

  private:
    void TakeBack(const QWindow* now)
    {
        const auto* const raised = static_cast<QWidget*>(parent());
        if (now != nullptr && now == raised->windowHandle() && window_.isVisible())
            window_.activateWindow();
    }

    QWidget& window_;
};

/// Whatever took the focus back from that window does so no more.
void LetGo(const QWidget& raised)
{
    delete raised.findChild<QObject*>(Keeper::Name, Qt::FindDirectChildrenOnly);
}

}  // namespace

void KeepFocus(QWidget& window, QWidget& raised)
{
    LetGo(raised);
    new Keeper(window, raised);
}

void BringForward(QWidget& window)
{
    LetGo(window);
    ShowInFront(window);
    window.activateWindow();
}

}  // namespace pixano
