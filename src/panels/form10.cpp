#include "panels/form10.h"

#include "windows/twips.h"
#include "windows/window_operation.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace pixano {
namespace {

/// The palette stands this far from the right edge of the screen, and is no wider.
constexpr double FromRightEdge = 3250;
/// What a window manager's border is taken to be, left and right together.
constexpr int Borders = 8;
constexpr int Margin = 4;
constexpr int Spacing = 3;

void Apply(const QWidget& palette, const char* name, Switch on)
{
    if (on) palette.findChild<QPushButton*>(name)->setEnabled(*on);
}

}  // namespace

Form10::Form10()
{
    setObjectName("Form10");
    setWindowTitle("Strumenti");
    setAccessibleName("Strumenti");
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(BuildFrame(PaletteFrame::Funzioni, "Funzioni ", 1));
    layout->addWidget(BuildFrame(PaletteFrame::Riflessi, "Riflessi ", 3));
    layout->addWidget(BuildFrame(PaletteFrame::Effetti, "Effetti ", 1));
    layout->addWidget(BuildZoomButtons());
    setFixedSize(Pixels(FromRightEdge) - Borders, layout->sizeHint().height());
    move(screen()->size().width() - Pixels(FromRightEdge), 0);
}

QWidget* Form10::BuildFrame(PaletteFrame frame, const QString& caption, int columns)
{
    auto* const box = new QGroupBox(caption);
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->setSpacing(Spacing);
    int place = 0;
    for (const PaletteButton& row : PaletteButtons()) {
        if (row.frame != frame) continue;
        grid->addWidget(BuildButton(row), place / columns, place % columns);
        ++place;
    }
    return box;
}

QWidget* Form10::BuildZoomButtons()
{
    auto* const strip = new QWidget;
    auto* const layout = new QHBoxLayout(strip);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing);
    for (const PaletteButton& row : PaletteButtons())
        if (row.frame == PaletteFrame::None) layout->addWidget(BuildButton(row));
    return strip;
}

QPushButton* Form10::BuildButton(const PaletteButton& row)
{
    constexpr QSize ButtonSize(20, 26);
    constexpr QSize PictureSize(22, 22);
    auto* const button = new QPushButton(QString::fromUtf8(row.caption));
    button->setObjectName(row.name);
    button->setToolTip(QString::fromUtf8(row.toolTip));
    button->setAccessibleName(QString::fromUtf8(row.accessible));
    button->setMinimumSize(ButtonSize);
    button->setFixedHeight(ButtonSize.height());
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (row.picture != nullptr) {
        button->setIcon(QIcon(QString(":/pixano/") + row.picture));
        button->setIconSize(PictureSize);
    }
    if (row.frame == PaletteFrame::Riflessi) {
        QFont font = button->font();
        font.setFamilies({"MS Sans Serif", font.family()});
        button->setFont(font);
    }
    connect(button, &QPushButton::clicked, this, [this, &row] { emit Pressed(row); });
    return button;
}

void Form10::EnableHistory(const HistorySwitches& switches)
{
    Apply(*this, "SSCommand15", switches.annulla);
    Apply(*this, "SSCommand16", switches.originale);
    Apply(*this, "SSCommand17", switches.ripristina);
}

void Form10::ShowHourglass(bool shown)
{
    if (shown)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void Form10::mousePressEvent(QMouseEvent* /*event*/)
{
    BringForward(*this);
}

}  // namespace pixano
