#include "windows/menu_keys.h"

#include "windows/belonging.h"
#include "windows/window_operation.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include <utility>

namespace pixano {

MenuKeys::MenuKeys(QMainWindow& window) : window_(window), bar_(*window.menuBar())
{
    Serve(QKeySequence(Qt::Key_F10), [this] {
        if (!Close()) Open(*bar_.actions().front());
    });
    opening_.setSingleShot(true);
    connect(&opening_, &QTimer::timeout, this, &MenuKeys::OpenAwaited);
    window.installEventFilter(this);
    bar_.installEventFilter(this);
}

void MenuKeys::Serve(const QKeySequence& keys, const std::function<void()>& act)
{
    ServeIn(window_, keys, act);
}

void MenuKeys::ServeIn(QWidget& window, const QKeySequence& keys, const std::function<void()>& act)
{
    auto* const shortcut = new QShortcut(keys, &window);
    if (&window == &window_) shortcut->setContext(Qt::ApplicationShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, act);
}

void MenuKeys::ServeLettersIn(QWidget& window)
{
    for (QAction* const entry : bar_.actions()) {
        const QKeySequence keys = QKeySequence::mnemonic(entry->text());
        if (!keys.isEmpty()) ServeIn(window, keys, [this, entry] { Use(*entry); });
    }
}

void MenuKeys::Use(QAction& entry)
{
    if (entry.menu() != nullptr)
        Open(entry);
    else
        entry.trigger();
}

void MenuKeys::Open(QAction& entry)
{
    constexpr int Patience = 1000;
    if (!window_.isActiveWindow()) cameFrom_ = QApplication::activeWindow();
    BringForward(window_);
    awaited_ = &entry;
    // A desktop that gives the focus as it likes lets a menu open only while its key is held.
    if (window_.isActiveWindow() || DesktopAloneArranges())
        OpenAwaited();
    else
        opening_.start(Patience);
}

void MenuKeys::OpenAwaited()
{
    // The patience with this entry must not run out on the next one.
    opening_.stop();
    QAction* const entry = std::exchange(awaited_, nullptr);
    if (entry == nullptr) return;
    GiveTheBarTheKeys();
    bar_.setActiveAction(entry);
    entry->menu()->setActiveAction(entry->menu()->actions().front());
}

bool MenuKeys::Close()
{
    bool any = false;
    for (const QAction* const entry : bar_.actions())
        if (entry->menu() != nullptr && entry->menu()->isVisible()) any = entry->menu()->close();
    // The bar would keep the keyboard, and take the next letter for a menu.
    if (bar_.hasFocus()) window_.setFocus();
    return any;
}

void MenuKeys::Leave()
{
    cameFrom_ = nullptr;
    Close();
}

/// As the alt key does: entries without a menu are started with return, and once all menus are
/// closed no letter opens one.
void MenuKeys::GiveTheBarTheKeys()
{
    // It may hold that it has them since an entry of its own was chosen, and would give them up.
    bar_.setFocus();
    window_.setFocus();
    // The modifiers are those from before: the toolkit turns over that of the key itself.
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier);
    for (QKeyEvent* const key : {&press, &release})
        QCoreApplication::sendEvent(&window_, key);
}

/// Gives the focus back to the window where the key for a menu was pressed, when no entry of it was
/// chosen.
void MenuKeys::GoBack()
{
    if (QApplication::activePopupWidget() != nullptr || bar_.hasFocus()) return;
    QWidget* const window = std::exchange(cameFrom_, nullptr);
    if (window == nullptr || !window_.isActiveWindow()) return;
    window->activateWindow();
    KeepFocus(*window, window_);
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &window_ && event->type() == QEvent::WindowActivate && awaited_ != nullptr)
        opening_.start(0);
    // The choice of an entry leaves the bar first.
    if (watched == &bar_ && event->type() == QEvent::FocusOut)
        QTimer::singleShot(0, this, &MenuKeys::GoBack);
    return QObject::eventFilter(watched, event);
}

}  // namespace pixano
