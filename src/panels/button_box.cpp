#include "panels/button_box.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace pixano {

QWidget* Frame(const QString& caption)
{
    auto* const box = new QGroupBox(caption);
    box->setObjectName("Frame" + caption.trimmed());
    return box;
}

void LayInRows(QWidget& box, int perRow, int margin)
{
    const auto buttons = box.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly);
    auto* const rows = new QVBoxLayout(&box);
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setSpacing(ButtonSpacing);
    QHBoxLayout* row = nullptr;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        if (i % perRow == 0) {
            row = new QHBoxLayout;
            rows->addLayout(row);
        }
        row->addWidget(buttons[i], 1);
    }
}

void WidenToCaptions(const QWidget& box)
{
    constexpr int BesideCaption = 6;
    const auto buttons = box.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly);
    int widest = 0;
    for (const QPushButton* const button : buttons)
        widest = std::max({widest, button->fontMetrics().horizontalAdvance(button->text()),
                           button->iconSize().width()});
    for (QPushButton* const button : buttons)
        button->setMinimumWidth(widest + BesideCaption);
}

void ForgetSizes(const QWidget& box)
{
    // Of a button's new size the box's layout hears, its rows do not.
    for (QObject* const row : box.layout()->children())
        static_cast<QLayout*>(row)->invalidate();
}

}  // namespace pixano
