#include "panels/form7.h"

#include "windows/centred.h"
#include "windows/free_screen.h"

#include <QFile>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace pixano {
namespace {

QString Description()
{
    QFile text(":/pixano/descrizione.html");
    return text.open(QIODevice::ReadOnly) ? QString::fromUtf8(text.readAll()) : QString();
}

}  // namespace

Form7::Form7()
{
    constexpr QSize TextSize(460, 210);
    constexpr QSize Beside(24, 60);  // margins, and the button below
    setObjectName("Form7");
    setWindowTitle(QString());
    setAccessibleName("Descrizione del programma");
    auto* const text = new QTextBrowser;
    text->setObjectName("RichTextBox1");
    text->setAccessibleName("Descrizione del programma");
    text->setOpenLinks(false);
    text->setMinimumSize(TextSize.boundedTo(LargestInside(*this) - Beside));
    text->setHtml(Description());
    auto* const close = new QPushButton("OK");
    close->setObjectName("Command1");
    close->setAccessibleName("OK");
    close->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(close, 0, Qt::AlignHCenter);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    Centre(*this);
}

void Form7::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    ShowNoTitle(*this);
}

}  // namespace pixano
