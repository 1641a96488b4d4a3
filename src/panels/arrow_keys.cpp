#include "panels/arrow_keys.h"

#include <QKeyEvent>
#include <QPushButton>

#include <cstdlib>
#include <limits>

namespace pixano {

ArrowKeys::ArrowKeys(QWidget& window) : QObject(&window), window_(window)
{
    for (QPushButton* const button : window.findChildren<QPushButton*>())
        button->installEventFilter(this);
}

bool ArrowKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key < Qt::Key_Left || key > Qt::Key_Down) return false;
    // The toolkit's own way leads to the next button or to the one before, whatever the arrow.
    if (QPushButton* const next = NextTo(*static_cast<QPushButton*>(watched), key))
        next->setFocus(Qt::OtherFocusReason);
    return true;
}

QPushButton* ArrowKeys::NextTo(const QPushButton& from, int key) const
{
    const bool alongTheRow = key == Qt::Key_Left || key == Qt::Key_Right;
    const int sign = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    QPushButton* nearest = nullptr;
    int shortest = std::numeric_limits<int>::max();
    for (QPushButton* const button : window_.findChildren<QPushButton*>()) {
        const QPoint way = Middle(*button) - Middle(from);
        const int ahead = sign * (alongTheRow ? way.x() : way.y());
        const int aside = std::abs(alongTheRow ? way.y() : way.x());
        if (!button->isEnabled() || ahead <= 0 || (alongTheRow && aside != 0)) continue;
        // The next row counts, however far aside.
        const int length = ahead * window_.width() + aside;
        if (length >= shortest) continue;
        shortest = length;
        nearest = button;
    }
    return nearest;
}

QPoint ArrowKeys::Middle(const QPushButton& button) const
{
    return button.mapTo(&window_, button.rect().center());
}

}  // namespace pixano
