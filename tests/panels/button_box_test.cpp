// What the boxes of the palette give their buttons.
#include "panels/button_box.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace pixano::test {
namespace {

TEST(ButtonBox, GivesEveryButtonRoomForTheWidestCaptionWhicheverHasIt)
{
    const QString widest = "Multi Step Orizzontale";
    for (const QStringList& captions :
         {QStringList{widest, "Vetro", "Forbici"}, QStringList{"Vetro", widest, "Forbici"},
          QStringList{"Vetro", "Forbici", widest}}) {
        const std::unique_ptr<QWidget> box(Frame("Effetti"));
        for (const QString& caption : captions)
            new QPushButton(caption, box.get());
        WidenToCaptions(*box);
        for (const QPushButton* const button : box->findChildren<QPushButton*>())
            EXPECT_GE(button->minimumWidth(), button->fontMetrics().horizontalAdvance(widest))
                << captions.join(", ").toStdString() << ": " << button->text().toStdString();
    }
}

TEST(ButtonBox, GivesEveryButtonRoomForTheWidestPicture)
{
    const std::unique_ptr<QWidget> box(Frame("Effetti"));
    auto* const pictured = new QPushButton(box.get());
    pictured->setIconSize({300, 10});
    new QPushButton("Vetro", box.get());
    WidenToCaptions(*box);
    for (const QPushButton* const button : box->findChildren<QPushButton*>())
        EXPECT_GE(button->minimumWidth(), 300) << button->text().toStdString();
}

}  // namespace
}  // namespace pixano::test
