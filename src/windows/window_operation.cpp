#include "windows/window_operation.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace pixano {
namespace {

constexpr auto Keeper = "FocusKeeper";

QObject* KeeperFrom(const QWidget& raised)
{
    return raised.findChild<QObject*>(Keeper, Qt::FindDirectChildrenOnly);
}

}  // namespace

void KeepFocus(QWidget& window, QWidget& raised)
{
    constexpr int Settling = 300;
    delete KeeperFrom(raised);
    auto* const keeper = new QObject(&raised);
    keeper->setObjectName(Keeper);
    QTimer::singleShot(Settling, keeper, &QObject::deleteLater);
    const auto takeBack = [keeper, &window, &raised](const QWindow* now) {
        if (now == nullptr || now != raised.windowHandle()) return;
        if (window.isVisible()) window.activateWindow();
        keeper->deleteLater();
    };
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, keeper, takeBack);
}

bool FocusIsKeptFrom(const QWidget& raised)
{
    return KeeperFrom(raised) != nullptr;
}

void BringForward(QWidget& window)
{
    delete KeeperFrom(window);
    ShowInFront(window);
    window.activateWindow();
}

}  // namespace pixano
