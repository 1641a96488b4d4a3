// A file dropped onto a window.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace pixano {

/// Lets one local file be dropped onto any of the widgets. What drags it is told that it was
/// copied: told of a move it would delete its file.
class FileDrops : public QObject {
    Q_OBJECT

  public:
    /// The widgets outlive this.
    explicit FileDrops(std::initializer_list<QWidget*> onto);

  signals:
    void Dropped(const QString& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace pixano
