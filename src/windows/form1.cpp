#include "windows/form1.h"

#include "version.h"
#include "windows/belonging.h"
#include "windows/palette_strip.h"
#include "windows/window_operation.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace pixano {
namespace {

constexpr std::string_view Separator = "-";

bool HasChildren(MenuTable entries, std::string_view name)
{
    return std::ranges::count(entries, name, &MenuEntry::parent) > 0;
}

}  // namespace

Form1::Form1(MenuTable entries) : entries_(entries)
{
    setObjectName("Form1");
    setWindowTitle(NameAndVersion);
    setAccessibleName("Pixano, finestra principale");
    BuildMenus();
    Serve(QKeySequence(Qt::CTRL | Qt::Key_V), *this, [this] { emit Pasted(); });
    Serve(QKeySequence(Qt::Key_F10), *this, [this] { OpenMenu(*controls_.front()); });
    opening_.setSingleShot(true);
    connect(&opening_, &QTimer::timeout, this, &Form1::OpenAwaitedMenu);
    setFixedSize(InsideWidth(), menuBar()->sizeHint().height());
    // Nothing else in it has the keyboard: the menu bar would keep it, and take letters for menus.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
}

int Form1::InsideWidth() const
{
    constexpr int Roomy = 520;
    constexpr int BothSides = 8;
    // In the middle of the screen, and yet beside the palette if the menus allow it.
    const int beside = screen()->size().width() - 2 * PaletteStrip() - BothSides;
    return std::max(std::min(Roomy, beside), menuBar()->sizeHint().width());
}

void Form1::BuildMenus()
{
    menuBar()->setObjectName("MenuBar");
    menuBar()->setAccessibleName("Comandi");
    menuBar()->setNativeMenuBar(false);
    menuBar()->installEventFilter(this);
    for (const MenuEntry& row : entries_) {
        controls_.push_back(AddEntry(row));
        if (*row.keys != '\0') AddShortcut(row);
    }
}

QAction* Form1::AddEntry(const MenuEntry& row)
{
    QWidget* parent = menuBar();
    if (*row.parent != '\0') parent = Control(PositionOf(row.parent)).menu();
    const QString caption = QString::fromUtf8(row.caption);
    auto* const action = new QAction(this);
    if (HasChildren(entries_, row.name)) {
        auto* const menu = new QMenu(this);
        menu->setObjectName(row.name);
        menu->setAccessibleName(QString(caption).remove('&'));
        action->setMenu(menu);
    }
    action->setObjectName(row.name);
    if (row.caption == Separator)
        action->setSeparator(true);
    else
        action->setText(caption);
    action->setEnabled(!row.designedOff);
    parent->addAction(action);
    connect(action, &QAction::triggered, this, [this, &row, action] {
        // A click must not toggle the mark: only the commands move it.
        if (action->isCheckable()) action->setChecked(true);
        cameFrom_ = nullptr;
        emit Clicked(row);
    });
    return action;
}

/// The captions stay as they are: the keys are not shown beside them.
void Form1::AddShortcut(const MenuEntry& row)
{
    Serve(QKeySequence(row.keys), *this, [this, &row, action = controls_.back()] {
        if (action->isEnabled()) emit Clicked(row);
    });
}

void Form1::Serve(const QKeySequence& keys, QWidget& window, const std::function<void()>& act)
{
    auto* const shortcut = new QShortcut(keys, &window);
    if (&window == this) shortcut->setContext(Qt::ApplicationShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, act);
}

void Form1::ServeKeysOf(QWidget& window)
{
    for (QAction* const entry : menuBar()->actions()) {
        const QKeySequence keys = QKeySequence::mnemonic(entry->text());
        if (!keys.isEmpty()) Serve(keys, window, [this, entry] { Use(*entry); });
    }
}

void Form1::Use(QAction& entry)
{
    if (entry.menu() != nullptr)
        OpenMenu(entry);
    else
        entry.trigger();
}

void Form1::OpenMenu(QAction& entry)
{
    constexpr int Patience = 1000;
    if (!isActiveWindow()) cameFrom_ = QApplication::activeWindow();
    BringForward(*this);
    awaited_ = &entry;
    // A desktop that gives the focus as it likes lets a menu open only while its key is held.
    if (isActiveWindow() || DesktopAloneArranges())
        OpenAwaitedMenu();
    else
        opening_.start(Patience);
}

void Form1::OpenAwaitedMenu()
{
    // The patience with this entry must not run out on the next one.
    opening_.stop();
    QAction* const entry = std::exchange(awaited_, nullptr);
    if (entry == nullptr) return;
    if (!menuBar()->hasFocus()) GiveTheBarTheKeys();
    menuBar()->setActiveAction(entry);
    entry->menu()->setActiveAction(entry->menu()->actions().front());
}

/// As the alt key does: entries without a menu are started with return, and once all menus are
/// closed no letter opens one.
void Form1::GiveTheBarTheKeys()
{
    // The modifiers are those from before: the toolkit turns over that of the key itself.
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier);
    for (QKeyEvent* const key : {&press, &release})
        QCoreApplication::sendEvent(this, key);
}

/// Gives the focus back to the window where the key for a menu was pressed, when no entry of it was
/// chosen.
void Form1::GoBack()
{
    if (QApplication::activePopupWidget() != nullptr || menuBar()->hasFocus()) return;
    QWidget* const window = std::exchange(cameFrom_, nullptr);
    if (window == nullptr || !isActiveWindow()) return;
    window->activateWindow();
    KeepFocus(*window, *this);
}

bool Form1::eventFilter(QObject* watched, QEvent* event)
{
    // The choice of an entry leaves the bar first.
    if (watched == menuBar() && event->type() == QEvent::FocusOut)
        QTimer::singleShot(0, this, &Form1::GoBack);
    return QMainWindow::eventFilter(watched, event);
}

bool Form1::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && awaited_ != nullptr) opening_.start(0);
    const bool done = QMainWindow::event(event);
    // Left by way of another window, the bar would have the keyboard again afterwards.
    if (event->type() == QEvent::WindowDeactivate && focusWidget() == menuBar()) setFocus();
    return done;
}

int Form1::PositionOf(std::string_view name) const
{
    const auto found = std::ranges::find(entries_, name, &MenuEntry::name);
    if (found == entries_.end()) throw std::out_of_range("no entry " + std::string(name));
    return static_cast<int>(found - entries_.begin());
}

std::optional<int> Form1::PositionOf(const Effect& effect) const
{
    const auto found = std::ranges::find(entries_, Starts(&effect), &MenuEntry::starts);
    if (found == entries_.end()) return std::nullopt;
    return static_cast<int>(found - entries_.begin());
}

void Form1::Check(int position, bool checked)
{
    // An entry can be marked only while it is checkable, so that the others show no empty box.
    QAction& action = Control(position);
    action.setCheckable(checked);
    action.setChecked(checked);
}

void Form1::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

}  // namespace pixano
