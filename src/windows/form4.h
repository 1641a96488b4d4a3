// The progress window. Knows nothing of effects; whoever runs one names it.
#pragma once

#include "canvas/progress.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QWidget>

#include <functional>

namespace pixano {

class Form4 : public QWidget, public ProgressWindow {
    Q_OBJECT

  public:
    Form4();

    /// The effect's name, asked when the window is shown.
    std::function<QString()> effectName = [] { return QString(); };

    /// The window goes; the next one is new: its bar is empty, and so is its title.
    void Unload();

    void Show() override;
    void SetBar(float value) override;
    float Bar() const override { return static_cast<float>(bar_->value()); }
    void SetCaption(const std::string& caption) override;
    /// The effect is done: the bar is full, and seen so until the window goes.
    void ShowFull();
    std::string Caption() const override { return windowTitle().toStdString(); }

  signals:
    /// The user closed the window.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    /// Paints the bar, if it has not been painted like that already.
    void RepaintBar();
    /// An effect holds the event loop, so the window paints itself; not so often that it costs
    /// time.
    void RepaintNowAndThen();

    QProgressBar* bar_;
    QElapsedTimer sinceRepaint_;
    int painted_ = 0;
};

}  // namespace pixano
