#include "panels/typed_slider.h"

#include <QKeyEvent>

#include <algorithm>
#include <optional>

namespace pixano {
namespace {

constexpr int Base = 10;

std::optional<int> DigitOf(const QKeyEvent& event)
{
    const QString text = event.text();
    const bool digit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
    return digit ? std::optional(text[0].digitValue()) : std::nullopt;
}

}  // namespace

void TypedSlider::keyPressEvent(QKeyEvent* event)
{
    if (const std::optional<int> digit = DigitOf(*event)) {
        Append(*digit);
        return;
    }
    if (event->key() == Qt::Key_Backspace) {
        setValue(value() / Base);
        sinceDigit_.start();
        return;
    }
    sinceDigit_.invalidate();
    QSlider::keyPressEvent(event);
}

void TypedSlider::Append(int digit)
{
    constexpr int Pause = 1000;
    const bool follows = sinceDigit_.isValid() && !sinceDigit_.hasExpired(Pause);
    setValue(std::min((follows ? value() * Base : 0) + digit, maximum()));
    sinceDigit_.start();
}

}  // namespace pixano
