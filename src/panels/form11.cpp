#include "panels/form11.h"

#include "canvas/rounding.h"
#include "windows/twips.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace pixano {
namespace {

constexpr int LargestPosition = 10000;
constexpr int PositionStep = 100;
constexpr int Page = 1000;

/// What a title bar with an icon and three buttons needs so that nothing of the title is left out.
int TitleWidth(const QString& title)
{
    constexpr int IconAndButtons = 120;
    QFont bold;
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(title) + IconAndButtons;
}

QPushButton* Button(const QString& name, const QString& caption)
{
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAccessibleName(caption);
    return button;
}

/// Where the number being typed is seen.
QLabel* TypedNumber()
{
    auto* const typed = new QLabel;
    typed->setObjectName("Typed");
    typed->setAccessibleName("Numero scritto");
    typed->setTextFormat(Qt::PlainText);
    typed->setAlignment(Qt::AlignCenter);
    // In many fonts an empty label has another height than a number; and another size of the window
    // would make it read the strengths again.
    typed->setFixedHeight(typed->fontMetrics().height());
    return typed;
}

}  // namespace

Form11::Form11(const QString& effect, const QWidget& palette)
    : slider1_(new TypedSlider(Qt::Horizontal)), label1_(new QLabel)
{
    constexpr double BelowTop = 600;
    constexpr double RightOfLeft = 140;
    setObjectName("Form11");
    setWindowTitle(effect);
    setAccessibleName(effect);
    move(palette.pos() + QPoint(Pixels(RightOfLeft), Pixels(BelowTop)));
    BuildSlider();
    label1_->setObjectName("Label1");
    label1_->setAlignment(Qt::AlignCenter);
    auto* const typed = TypedNumber();
    connect(slider1_, &TypedSlider::Typed, typed, &QLabel::setText);
    auto* const ok = Button("Command1", "OK");
    auto* const cancel = Button("Command2", "Annulla");
    ok->setDefault(true);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(ok, 1);
    buttons->addWidget(cancel, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label1_);
    layout->addWidget(slider1_);
    layout->addWidget(typed);
    layout->addLayout(buttons);
    const int beside = palette.width() - Pixels(RightOfLeft);
    const int width = std::max({beside, layout->minimumSize().width(), TitleWidth(effect)});
    resize(width, layout->sizeHint().height());
    StayOnScreen();
    slider1_->setFocus();
    connect(slider1_, &QSlider::valueChanged, this, &Form11::TakePosition);
    connect(ok, &QPushButton::clicked, this, &Form11::Confirmed);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void Form11::BuildSlider()
{
    slider1_->setObjectName("Slider1");
    slider1_->setAccessibleName("Forza");
    slider1_->setToolTip("Si sposta anche con le frecce o la rotella, o scrivendo il valore");
    slider1_->setRange(0, LargestPosition);
    slider1_->setSingleStep(PositionStep);
    slider1_->setPageStep(Page);
    slider1_->setTickPosition(QSlider::TicksBelow);
    slider1_->setTickInterval(Page);
}

void Form11::TakePosition(int value)
{
    label1_->setText(QString::number(value));
    emit Moved(value);
}

void Form11::ShowStrength(double value)
{
    constexpr int SignificantDigits = 15;
    label1_->setText(QString::number(value, 'g', SignificantDigits));
    const int position = CLng(std::clamp<double>(value, -1, LargestPosition + 1));
    slider1_->setValue(position);
    if (position < 0 || position > LargestPosition) TakePosition(slider1_->value());
}

void Form11::StayOnScreen()
{
    const int beyond = geometry().right() - screen()->availableGeometry().right();
    QMargins margins = layout()->contentsMargins();
    margins.setRight(margins.left() + std::max(0, beyond));
    layout()->setContentsMargins(margins);
}

void Form11::moveEvent(QMoveEvent* event)
{
    QDialog::moveEvent(event);
    StayOnScreen();
}

void Form11::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    emit Resized();
}

}  // namespace pixano
