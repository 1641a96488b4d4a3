// The main window: a menu bar and nothing else. Tells which entry was clicked; knows no command.
#pragma once

#include <QAction>
#include <QMainWindow>

#include <functional>
#include <vector>

namespace pixano {

class Form1 : public QMainWindow {
    Q_OBJECT

  public:
    Form1();

    /// The entry at the zero-based `position` among the main window's controls (its `Index` less
    /// 1).
    QAction& Control(int position) const
    {
        return *controls_.at(static_cast<std::size_t>(position));
    }
    /// Switches the entry with that `Index` on or off.
    void Enable(int index, bool on) const { Control(index - 1).setEnabled(on); }
    /// Sets or takes away the check mark of the entry at `position`.
    void Check(int position, bool checked);

    /// Asked when the user closes the window; false keeps it open.
    std::function<bool()> mayClose = [] { return true; };

  signals:
    /// The entry with that `Index` was clicked.
    void Clicked(int index);
    /// The picture file at `path` was dropped onto the window.
    void Dropped(const QString& path);
    /// What lies in the clipboard is to be opened.
    void Pasted();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void BuildMenus();
    int InsideWidth() const;
    QAction* AddEntry(int index);
    void AddShortcut(const QKeySequence& keys, int index);

    std::vector<QAction*> controls_;
};

}  // namespace pixano
