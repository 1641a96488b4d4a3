// The keys that lead to the menus, from whatever window of the program they are pressed in.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>

class QAction;
class QKeySequence;
class QMenuBar;

namespace pixano {

class MenuKeys : public QObject {
  public:
    /// Serves F10 in every window of the program; the menus are those of `window`, which outlives
    /// this.
    explicit MenuKeys(QMainWindow& window);

    /// Does that once when the keys are pressed in any window of the program, however long they are
    /// held.
    void Serve(const QKeySequence& keys, const std::function<void()>& act);
    /// Lets the underlined letters work in that window too: the one of the menus comes forward.
    void ServeLettersIn(QWidget& window);
    /// Something was chosen: no menu stays open, and the focus goes where the choice leads it.
    void Leave();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The same in that window; in all of them when it is the one of the menus.
    void ServeIn(QWidget& window, const QKeySequence& keys, const std::function<void()>& act);
    /// What the entry's letter does in another window.
    void Use(QAction& entry);
    /// Comes forward with the entry's menu open.
    void Open(QAction& entry);
    void OpenAwaited();
    /// Leaves the menus and their bar; says whether a menu was open.
    bool Close();
    void GiveTheBarTheKeys();
    void GoBack();

    QMainWindow& window_;
    QMenuBar& bar_;
    /// The entry whose menu opens once the window has the focus.
    QAction* awaited_ = nullptr;
    /// Opens it when the focus comes, or when it is long in coming.
    QTimer opening_;
    /// The window where the key for a menu was pressed; null when it was in the menus' own, and
    /// when an entry was chosen.
    QPointer<QWidget> cameFrom_;
};

}  // namespace pixano
