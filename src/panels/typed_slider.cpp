#include "panels/typed_slider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QStyleOptionFocusRect>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>

namespace pixano {
namespace {

constexpr qsizetype MostLetters = 16;

bool IsDigit(QChar letter)
{
    return letter >= '0' && letter <= '9';
}

/// What may stand between the digits of a number.
bool IsSeparator(QChar letter)
{
    return (letter.isSpace() && letter.isPrint()) || QStringLiteral(u".,'’").contains(letter);
}

/// The whole part of what was typed; a point before exactly three digits parts the thousands.
qlonglong WholePart(QString text)
{
    static const QRegularExpression passedOver(QStringLiteral(u"[\\s'’]"));
    static const QRegularExpression thousands(R"(^\d{1,3}(\.\d{3})+(?!\d))");
    static const QRegularExpression digits(R"(^\d*)");
    text.remove(passedOver);
    if (const auto grouped = thousands.match(text); grouped.hasMatch())
        return grouped.captured().remove('.').toLongLong();
    return digits.match(text).captured().toLongLong();
}

bool IsModifier(int key)
{
    return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

}  // namespace

void TypedSlider::keyPressEvent(QKeyEvent* event)
{
    // What has another meaning elsewhere is not typed.
    const bool command =
        event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = command ? QString() : event->text();
    const QChar letter = text.size() == 1 ? text[0] : QChar();
    if (IsDigit(letter) || (IsSeparator(letter) && !text_.isEmpty())) {
        if (text_.size() < MostLetters) Take(text_ + letter);
    } else if (event->key() == Qt::Key_Backspace) {
        Take((text_.isEmpty() ? QString::number(value()) : text_).chopped(1));
    } else {
        if (!letter.isPrint() && !IsModifier(event->key())) Forget();
        QSlider::keyPressEvent(event);
    }
}

void TypedSlider::Take(const QString& text)
{
    const qlonglong number = WholePart(text);
    // The number that is taken instead is seen.
    text_ = number > maximum() ? QString::number(maximum()) : text;
    taking_ = true;
    setValue(static_cast<int>(std::min<qlonglong>(number, maximum())));
    taking_ = false;
    emit Typed(text_);
}

void TypedSlider::Forget()
{
    if (text_.isEmpty()) return;
    text_.clear();
    emit Typed(text_);
}

/// The toolkit's own style takes a press beside the handle only where the groove is.
void TypedSlider::mousePressEvent(QMouseEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QPointF place(event->position().x(), groove.center().y());
    QMouseEvent along(event->type(), place, event->globalPosition(), event->button(),
                      event->buttons(), event->modifiers(), event->pointingDevice());
    QSlider::mousePressEvent(&along);
    event->setAccepted(along.isAccepted());
}

void TypedSlider::sliderChange(SliderChange change)
{
    if (change == SliderValueChange && !taking_) Forget();
    QSlider::sliderChange(change);
}

void TypedSlider::focusOutEvent(QFocusEvent* event)
{
    Forget();
    QSlider::focusOutEvent(event);
}

/// The toolkit's own style does not show where the keyboard is.
void TypedSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);
    if (!hasFocus()) return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

}  // namespace pixano
