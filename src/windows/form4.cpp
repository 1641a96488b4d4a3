#include "windows/form4.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace pixano {
namespace {

constexpr int MillisecondsPerRepaint = 40;

/// A window paints nothing before its first expose. Waits for it, but not for ever; what the user
/// clicks meanwhile stays queued.
void WaitForExpose(const QWidget& widget)
{
    constexpr int Patience = 1000;
    QElapsedTimer waited;
    waited.start();
    // One that was hidden just now may count as exposed still, but paints nothing.
    const auto shown = [&widget] {
        return widget.windowHandle()->isExposed() && widget.testAttribute(Qt::WA_Mapped);
    };
    while (!shown() && waited.elapsed() < Patience)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, MillisecondsPerRepaint);
}

}  // namespace

Form4::Form4() : bar_(new QProgressBar)
{
    constexpr int BarMaximum = 400;
    constexpr QSize Inside(380, 44);
    setObjectName("Form4");
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAccessibleName("Avanzamento dell'elaborazione");
    bar_->setObjectName("ProgressBar1");
    bar_->setAccessibleName("Avanzamento");
    bar_->setRange(0, BarMaximum);
    bar_->setValue(0);
    // The title says how much is done; the bar is painted less often and would say less.
    bar_->setTextVisible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(bar_);
    setFixedSize(Inside.expandedTo(layout->sizeHint()));
}

void Form4::Unload()
{
    hide();
    bar_->setValue(0);
    setWindowTitle("");
}

void Form4::Show()
{
    SetCaption("Elab. " + effectName().toStdString());
    if (!isVisible()) {
        const QRect free = screen()->availableGeometry();
        move(free.center() - rect().center());
        show();
        WaitForExpose(*this);
    }
    repaint();
    painted_ = 0;
    sinceRepaint_.start();
}

void Form4::SetBar(float value)
{
    // The bar would repaint itself at every step otherwise.
    bar_->setUpdatesEnabled(false);
    bar_->setValue(static_cast<int>(value));
    bar_->setUpdatesEnabled(true);
}

void Form4::SetCaption(const std::string& caption)
{
    if (const QString text = QString::fromStdString(caption); text != windowTitle())
        setWindowTitle(text);
    RepaintNowAndThen();
}

void Form4::RepaintNowAndThen()
{
    if (!sinceRepaint_.isValid() || sinceRepaint_.elapsed() < MillisecondsPerRepaint) return;
    RepaintBar();
}

void Form4::RepaintBar()
{
    bar_->repaint();
    painted_ = bar_->value();
    sinceRepaint_.start();
}

void Form4::ShowFull()
{
    SetBar(static_cast<float>(bar_->maximum()));
    if (painted_ != bar_->maximum()) RepaintBar();
}

void Form4::closeEvent(QCloseEvent* event)
{
    event->accept();
    emit Closed();
}

}  // namespace pixano
