// The main window: a menu bar and nothing else. Tells which entry was clicked; knows no command.
#pragma once

#include "windows/menu_entry.h"
#include "windows/menu_keys.h"

#include <QAction>
#include <QMainWindow>

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
    void ServeKeysIn(QWidget& window) { keys_.ServeLettersIn(window); }

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

  signals:
    void Clicked(const pixano::MenuEntry& entry);
    /// What lies in the clipboard is to be opened.
    void Pasted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void BuildMenus();
    int InsideWidth() const;
    QAction* AddEntry(const MenuEntry& row);
    void AddShortcut(const MenuEntry& row);
    void Choose(const MenuEntry& row);
    /// Throws std::out_of_range when no entry has that name.
    int PositionOf(std::string_view name) const;

    MenuTable entries_;
    std::vector<QAction*> controls_;
    MenuKeys keys_{*this};
};

}  // namespace pixano
