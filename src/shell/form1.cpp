#include "shell/form1.h"

#include "panels/form10.h"
#include "shell/menu_table.h"
#include "windows/dropped_file.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace pixano {
namespace {

bool HasChildren(int index)
{
    return std::ranges::count(MenuEntries(), index, &MenuEntry::parent) > 0;
}

}  // namespace

Form1::Form1()
{
    setObjectName("Form1");
    setWindowTitle("Pixano 2.3");
    setAccessibleName("Pixano, finestra principale");
    setAcceptDrops(true);
    BuildMenus();
    // The captions stay as they are: the keys are not shown beside them.
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_O), entry::Apri);
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), entry::Salva);
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z), entry::Undo);
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_Y), entry::Redo);
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), entry::Orig);
    auto* const paste = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_V), this);
    paste->setContext(Qt::ApplicationShortcut);
    connect(paste, &QShortcut::activated, this, &Form1::Pasted);
    setFixedSize(InsideWidth(), menuBar()->sizeHint().height());
}

int Form1::InsideWidth() const
{
    constexpr int Roomy = 520;
    constexpr int Borders = 8;
    // In the middle of the screen, and yet beside the palette if the menus allow it.
    const int beside = screen()->size().width() - 2 * Form10::FromRightEdge() - Borders;
    return std::max(std::min(Roomy, beside), menuBar()->sizeHint().width());
}

void Form1::BuildMenus()
{
    menuBar()->setObjectName("MenuBar");
    menuBar()->setAccessibleName("Comandi");
    menuBar()->setNativeMenuBar(false);
    const int count = static_cast<int>(MenuEntries().size());
    for (int index = 1; index <= count; ++index)
        controls_.push_back(AddEntry(index));
}

QAction* Form1::AddEntry(int index)
{
    const MenuEntry& row = MenuEntries()[static_cast<std::size_t>(index - 1)];
    QWidget* parent = menuBar();
    if (row.parent != 0) parent = Control(row.parent - 1).menu();
    const QString caption = QString::fromUtf8(row.caption);
    auto* const action = new QAction(this);
    if (HasChildren(index)) {
        auto* const menu = new QMenu(this);
        menu->setObjectName(row.name);
        menu->setAccessibleName(QString(caption).remove('&'));
        action->setMenu(menu);
    }
    action->setObjectName(row.name);
    if (caption == "-")
        action->setSeparator(true);
    else
        action->setText(caption);
    action->setEnabled(!row.designedOff);
    parent->addAction(action);
    connect(action, &QAction::triggered, this, [this, index, action] {
        // A click must not toggle the mark: only the commands move it.
        if (action->isCheckable()) action->setChecked(true);
        emit Clicked(index);
    });
    return action;
}

void Form1::AddShortcut(const QKeySequence& keys, int index)
{
    auto* const shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::ApplicationShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, index] {
        if (Control(index - 1).isEnabled()) emit Clicked(index);
    });
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

void Form1::dragEnterEvent(QDragEnterEvent* event)
{
    AcceptPictureDrag(*event);
}

void Form1::dropEvent(QDropEvent* event)
{
    if (const QString path = DroppedFile(*event); !path.isEmpty()) emit Dropped(path);
}

}  // namespace pixano
