#include "windows/wrapped_text.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextOption>

#include <cmath>

namespace pixano {

WrappedText::WrappedText(const QString& text, int width)
{
    setObjectName("WrappedText");
    setAccessibleName(text);
    lines_.setDefaultFont(font());
    lines_.setDocumentMargin(0);
    lines_.setDefaultTextOption([] {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        return option;
    }());
    lines_.setPlainText(text);
    lines_.setTextWidth(width);
    setFixedSize(width, static_cast<int>(std::ceil(lines_.size().height())));
}

void WrappedText::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    lines_.documentLayout()->draw(&painter, context);
}

}  // namespace pixano
