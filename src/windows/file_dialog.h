// The file dialog, for opening and for saving alike: Italian whatever the system's locale is, and
// with an answer to every name that is typed. Knows no picture.
#pragma once

#include "windows/file_looks.h"

#include <QFileDialog>
#include <QLineEdit>

#include <optional>

namespace pixano {

class FileDialog : public QFileDialog {
    Q_OBJECT

  public:
    /// Starts in `folder`, or in what is left of its path where that is gone. `looks` outlives it.
    FileDialog(FileLooks& looks, const QString& title, const QString& folder);

    /// Lets the name of a file in its folder stand there already, to be changed.
    void BeginWith(const QString& name);

    /// The path chosen or typed; nothing when cancelled.
    std::optional<QString> AskName();

  protected:
    void accept() override;
    /// Presses a button that is pressed beside the list of names: the toolkit only closes that.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Where the name is typed.
    QLineEdit& Name() const;
    void ShowWholeColumns();

    /// What was typed where the toolkit itself would give no answer.
    QString typed_;
};

}  // namespace pixano
