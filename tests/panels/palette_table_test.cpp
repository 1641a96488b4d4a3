#include "panels/expected_buttons.h"
#include "panels/form10.h"
#include "shell/controls.h"

#include <QGroupBox>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

std::string FrameAround(const QWidget& button)
{
    const auto* const frame = qobject_cast<QGroupBox*>(button.parentWidget());
    return frame != nullptr ? frame->title().toStdString() : "";
}

TEST(PaletteTable, HasTheseButtonsInThisOrder)
{
    ASSERT_EQ(PaletteButtons().size(), ExpectedButtons.size());
    for (std::size_t i = 0; i < ExpectedButtons.size(); ++i)
        EXPECT_STREQ(PaletteButtons()[i].name, ExpectedButtons[i].name);
}

TEST(Palette, ShowsEveryButtonAsItIsTabled)
{
    const Form10 palette(PaletteButtons());
    EXPECT_EQ(palette.findChildren<QPushButton*>().size(), std::ssize(ExpectedButtons));
    for (const ExpectedButton& expected : ExpectedButtons) {
        const auto* const button = palette.findChild<QPushButton*>(expected.name);
        ASSERT_NE(button, nullptr) << expected;
        EXPECT_EQ(button->text(), QString::fromUtf8(expected.caption)) << expected;
        EXPECT_EQ(button->toolTip(), QString::fromUtf8(expected.toolTip)) << expected;
        EXPECT_EQ(FrameAround(*button), expected.frame) << expected;
    }
}

TEST(Palette, NamesEveryButtonForThoseWhoDoNotSeeIt)
{
    const Form10 palette(PaletteButtons());
    for (const ExpectedButton& expected : ExpectedButtons) {
        QString name = QString::fromUtf8(expected.toolTip).trimmed();
        if (name.isEmpty()) name = QString::fromUtf8(expected.caption);
        if (expected.zoom != 0)
            name = expected.zoom > 0 ? "Ingrandisci l'anteprima" : "Riduci l'anteprima";
        EXPECT_EQ(palette.findChild<QPushButton*>(expected.name)->accessibleName(), name)
            << expected;
    }
}

TEST(Palette, ShowsPicturesOnTheButtonsWithoutCaption)
{
    const Form10 palette(PaletteButtons());
    QList<QByteArray> shown;
    for (const char* name : {"SSCommand9", "SSCommand10", "Command1", "Command2"}) {
        const auto* const button = palette.findChild<QPushButton*>(name);
        ASSERT_TRUE(button->text().isEmpty()) << name;
        // Drawn for a screen of double scale too, and no two alike.
        const QImage picture = button->icon().pixmap(QSize(22, 22), 2).toImage();
        ASSERT_EQ(picture.size(), QSize(44, 44)) << name;
        const QByteArray bytes(reinterpret_cast<const char*>(picture.bits()),
                               picture.sizeInBytes());
        EXPECT_FALSE(shown.contains(bytes)) << name;
        shown.append(bytes);
    }
}

TEST(Palette, ShowsMagnifiersInTheColourOfTheLettersOnTheButtonsOwnGround)
{
    Form10 palette(PaletteButtons());
    for (const QColor letters : {QColor(0xfa, 0xfa, 0xff), QColor(0x10, 0x20, 0x30)}) {
        QPalette colours = palette.palette();
        colours.setColor(QPalette::ButtonText, letters);
        palette.setPalette(colours);
        for (const char* name : {"Command1", "Command2"}) {
            const auto* const button = palette.findChild<QPushButton*>(name);
            const QImage picture = button->icon().pixmap(QSize(22, 22), 1).toImage();
            EXPECT_EQ(picture.pixelColor(21, 0).alpha(), 0) << name;  // a corner
            const QColor sign = picture.pixelColor(9, 9);
            EXPECT_EQ(sign.alpha(), 255) << name;
            EXPECT_EQ(sign.rgb(), letters.rgb()) << name;
        }
    }
}

TEST(Palette, WritesItsSymbolsInTheirFont)
{
    const Form10 palette(PaletteButtons());
    for (const ExpectedButton& expected : ExpectedButtons) {
        const QFont font = palette.findChild<QPushButton*>(expected.name)->font();
        const bool symbol = std::string(expected.frame) == "Riflessi ";
        EXPECT_EQ(font.families().contains("MS Sans Serif"), symbol) << expected;
    }
}

TEST(Palette, TellsWhichButtonWasPressed)
{
    Form10 palette(PaletteButtons());
    palette.show();
    std::vector<std::string> told;
    QObject::connect(&palette, &Form10::Pressed,
                     [&](const PaletteButton& button) { told.emplace_back(button.name); });
    std::vector<std::string> expected;
    for (const ExpectedButton& button : ExpectedButtons) {
        expected.emplace_back(button.name);
        palette.findChild<QPushButton*>(button.name)->click();
    }
    EXPECT_EQ(told, expected);
}

}  // namespace
}  // namespace pixano::test
