#include "panels/form10.h"

#include "panels/arrow_keys.h"
#include "panels/built_in.h"
#include "panels/button_box.h"
#include "windows/belonging.h"
#include "windows/free_screen.h"
#include "windows/palette_strip.h"
#include "windows/window_operation.h"

#include <QEvent>
#include <QFontInfo>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace pixano {

namespace {

/// What a window manager's frame is taken to be: left and right together, top and bottom together.
constexpr int Borders = UsualFrame.left() + UsualFrame.right();
constexpr int TitleAndBorder = 30;
constexpr int Margin = 4;
/// How many buttons of each box stand side by side.
constexpr std::array PerRow{3, 4, 2, 2};

int InsideWidth()
{
    // The toolkit's own frame has three large buttons, whatever a window asks for; and where
    // windows are not placed by themselves no strip of the screen has to do.
    constexpr int ForLargeButtons = 60;
    const int inside = PaletteStrip() - Borders;
    return DesktopAloneArranges() ? inside + ForLargeButtons : inside;
}

void Apply(QWidget& palette, const char* name, Switch on)
{
    auto* const button = palette.findChild<QPushButton*>(name);
    // The toolkit would give the focus to the next button, and a second blank would press that one.
    if (on == false && palette.focusWidget() == button) palette.setFocus();
    if (on) button->setEnabled(*on);
}

}  // namespace

Form10::Form10(PaletteTable buttons)
    : boxes_{Frame("Funzioni "), Frame("Riflessi "), Frame("Effetti "), new QWidget}
{
    setObjectName("Form10");
    setWindowTitle("Strumenti");
    setAccessibleName("Strumenti");
    setAttribute(Qt::WA_ShowWithoutActivating);
    // After an opening another window has the focus, and what the signs mean is not known yet.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(ButtonSpacing);
    for (QWidget* const box : boxes_)
        layout->addWidget(box);
    for (const PaletteButton& row : buttons)
        BuildButton(row)->setParent(boxes_.at(static_cast<std::size_t>(row.frame)));
    new ArrowKeys(*this);
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        LayInRows(*boxes_[i], PerRow.at(i), i + 1 < boxes_.size() ? Margin : 0);
    DrawPictures();
    ArrangeFor(screen()->availableGeometry().height());
}

QPushButton* Form10::BuildButton(const PaletteButton& row)
{
    auto* const button = new QPushButton(QString::fromUtf8(row.caption));
    button->setObjectName(row.name);
    button->setToolTip(QString::fromUtf8(row.toolTip));
    button->setAccessibleName(QString::fromUtf8(row.accessible));
    button->setAutoDefault(true);  // the return key presses it, as the blank does
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (row.picture != nullptr) pictures_.emplace_back(button, row.picture);
    if (row.frame == PaletteFrame::Riflessi) {
        QFont font;
        font.setFamilies({"MS Sans Serif", font.family()});
        button->setFont(font);
    }
    connect(button, &QPushButton::clicked, this, [this, &row] { emit Pressed(row); });
    return button;
}

void Form10::DrawPictures()
{
    for (const auto& [button, picture] : pictures_)
        button->setIcon(ButtonPicture(picture, palette().color(QPalette::ButtonText)));
}

void Form10::changeEvent(QEvent* event)
{
    // Other colours of the desktop ask for another ink.
    if (event->type() == QEvent::PaletteChange) DrawPictures();
    QWidget::changeEvent(event);
}

void Form10::ArrangeFor(int height)
{
    constexpr ButtonSize Roomy{26, 22};
    constexpr ButtonSize Tight{22, 18};
    Size(Roomy);
    if (layout()->sizeHint().height() + TitleAndBorder > height) Size(Tight);
    setFixedSize(InsideWidth(), layout()->sizeHint().height());
}

void Form10::Size(const ButtonSize& size)
{
    constexpr double Smallest = 5;
    constexpr double Step = 0.5;
    for (QPushButton* const button : findChildren<QPushButton*>()) {
        button->setFixedHeight(size.height);
        button->setIconSize({size.picture, size.picture});
    }
    // Letters smaller than the desktop's rather than captions cut off.
    QFont smaller;
    double points = QFontInfo(smaller).pointSizeF();
    do {
        smaller.setPointSizeF(points);
        setFont(smaller);
        points -= Step;
    } while (!FitsItsWidth() && points >= Smallest);
}

bool Form10::FitsItsWidth()
{
    for (QWidget* const box : boxes_) {
        WidenToCaptions(*box);
        ForgetSizes(*box);
    }
    layout()->invalidate();
    return layout()->minimumSize().width() <= InsideWidth();
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

void Form10::setVisible(bool visible)
{
    // Closed and shown again it is loaded anew, in its own place.
    if (visible && !isVisible()) {
        const QRect free = screen()->availableGeometry();
        ArrangeFor(free.height());
        move(free.left() + free.width() - PaletteStrip(), free.top());
        // The keyboard starts at the effects, and not at the history that the first one switches
        // on.
        if (focusWidget() == nullptr) boxes_.at(1)->findChild<QPushButton*>()->setFocus();
    }
    QWidget::setVisible(visible);
}

void Form10::mousePressEvent(QMouseEvent* /*event*/)
{
    BringForward(*this);
}

}  // namespace pixano
