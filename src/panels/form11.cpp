#include "panels/form11.h"

#include "canvas/rounding.h"
#include "windows/twips.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace pixano {
namespace {

constexpr int Largest = 10000;
constexpr int Step = 100;
constexpr int Page = 1000;

QPushButton* Button(const QString& name, const QString& caption)
{
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAccessibleName(caption);
    return button;
}

}  // namespace

Form11::Form11(const QString& effect, const QWidget& palette)
    : slider1_(new QSlider(Qt::Horizontal)), label1_(new QLabel)
{
    constexpr double BelowTop = 600;
    constexpr double RightOfLeft = 140;
    constexpr int Width = 340;
    setObjectName("Form11");
    setWindowTitle(effect);
    setAccessibleName(effect);
    move(palette.pos() + QPoint(Pixels(RightOfLeft), Pixels(BelowTop)));
    slider1_->setObjectName("Slider1");
    slider1_->setAccessibleName("Intensità");
    slider1_->setRange(0, Largest);
    slider1_->setSingleStep(Step);
    slider1_->setPageStep(Page);
    slider1_->setTickPosition(QSlider::TicksBelow);
    slider1_->setTickInterval(Page);
    label1_->setObjectName("Label1");
    label1_->setAccessibleName("Valore");
    label1_->setAlignment(Qt::AlignCenter);
    auto* const ok = Button("Command1", "OK");
    auto* const cancel = Button("Command2", "Annulla");
    ok->setDefault(true);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label1_);
    layout->addWidget(slider1_);
    layout->addLayout(buttons);
    resize(Width, layout->sizeHint().height());
    connect(slider1_, &QSlider::valueChanged, this, [this](int value) {
        label1_->setText(QString::number(value));
        emit Moved(value);
    });
    connect(ok, &QPushButton::clicked, this, &Form11::Confirmed);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void Form11::ShowStrength(double value)
{
    constexpr int SignificantDigits = 15;
    label1_->setText(QString::number(value, 'g', SignificantDigits));
    slider1_->setValue(CLng(std::clamp<double>(value, 0, Largest)));
}

void Form11::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    emit Resized();
}

}  // namespace pixano
