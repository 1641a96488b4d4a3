#include "panels/form7.h"

#include "windows/centred.h"
#include "windows/free_screen.h"

#include <QFile>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace pixano {
namespace {

QString Description()
{
    QFile text(":/pixano/descrizione.html");
    return text.open(QIODevice::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
}

/// Makes the box as high as its text is at that width, but no larger than `most`.
void FitToText(QTextBrowser& box, int width, QSize most)
{
    constexpr int AroundText = 16;
    const int frame = 2 * box.frameWidth();
    QTextDocument& text = *box.document();
    text.setDocumentMargin(AroundText);
    width = std::min(width, most.width());
    text.setTextWidth(width - frame);
    const int height = static_cast<int>(std::ceil(text.size().height())) + frame;
    box.setFixedSize(QSize(width, height).boundedTo(most));
}

}  // namespace

Form7::Form7()
{
    constexpr int TextWidth = 480;
    constexpr QSize Beside(24, 60);  // margins, and the button below
    setObjectName("Form7");
    setWindowTitle(QString());
    setAccessibleName("Descrizione del programma");
    auto* const text = new QTextBrowser;
    text->setObjectName("RichTextBox1");
    text->setAccessibleName("Descrizione del programma");
    text->setOpenLinks(false);
    text->setHtml(Description());
    FitToText(*text, TextWidth, LargestInside(*this) - Beside);
    auto* const close = new QPushButton("OK");
    close->setObjectName("Command1");
    close->setAccessibleName("OK");
    close->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    Centre(*this);
}

void Form7::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    ShowNoTitle(*this);
}

}  // namespace pixano
