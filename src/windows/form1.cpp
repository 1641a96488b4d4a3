#include "windows/form1.h"

#include "version.h"
#include "windows/palette_strip.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <stdexcept>
#include <string>

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
    keys_.Serve(QKeySequence(Qt::CTRL | Qt::Key_V), [this] {
        keys_.Leave();
        emit Pasted();
    });
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
        Choose(row);
    });
    return action;
}

/// The captions stay as they are: the keys are not shown beside them.
void Form1::AddShortcut(const MenuEntry& row)
{
    keys_.Serve(QKeySequence(row.keys), [this, &row, action = controls_.back()] {
        if (action->isEnabled()) Choose(row);
    });
}

void Form1::Choose(const MenuEntry& row)
{
    keys_.Leave();
    emit Clicked(row);
}

bool Form1::event(QEvent* event)
{
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
