// The main window: a menu bar and nothing else. Tells which entry was clicked; knows no command.
#pragma once

#include "windows/menu_entry.h"

#include <QAction>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace pixano {

class Form1 : public QMainWindow {
    Q_OBJECT

  public:
    /// `entries` outlives the window.
    explicit Form1(MenuTable entries);

    MenuTable Entries() const { return entries_; }

    /// The entry at the zero-based `position` among the main window's controls (its `Index` less
    /// 1).
    QAction& Control(int position) const
    {
        return *controls_.at(static_cast<std::size_t>(position));
    }
    /// The position of the entry that starts the effect; nothing when none does.
    std::optional<int> PositionOf(const Effect& effect) const;
    /// Switches the entry of that name on or off.
    void Enable(const char* name, bool on) const { Control(PositionOf(name)).setEnabled(on); }
    bool Enabled(const char* name) const { return Control(PositionOf(name)).isEnabled(); }
    /// Sets or takes away the check mark of the entry at `position`.
    void Check(int position, bool checked);

    /// Lets the keys that open the menus work in that window too: this one comes forward then.
    void ServeKeysOf(QWidget& window);

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

  signals:
    void Clicked(const pixano::MenuEntry& entry);
    /// What lies in the clipboard is to be opened.
    void Pasted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildMenus();
    int InsideWidth() const;
    QAction* AddEntry(const MenuEntry& row);
    void AddShortcut(const MenuEntry& row);
    /// Does that once when the keys are pressed, however long they are held: in the window, or in
    /// every window of the program when it is this one.
    void Serve(const QKeySequence& keys, QWidget& window, const std::function<void()>& act);
    /// What the entry's key does in another window.
    void Use(QAction& entry);
    /// Comes forward with the entry's menu open.
    void OpenMenu(QAction& entry);
    void OpenAwaitedMenu();
    void GiveTheBarTheKeys();
    void GoBack();
    /// Throws std::out_of_range when no entry has that name.
    int PositionOf(std::string_view name) const;

    MenuTable entries_;
    std::vector<QAction*> controls_;
    /// The entry whose menu opens once the window has the focus.
    QAction* awaited_ = nullptr;
    /// Opens it when the focus comes, or when it is long in coming.
    QTimer opening_;
    /// The window where the key for a menu was pressed; null when it was in this one, and when an
    /// entry was chosen.
    QPointer<QWidget> cameFrom_;
};

}  // namespace pixano
