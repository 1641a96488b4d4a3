// The slider window in every font of the system: an empty label is higher or lower than one with a
// number in many.
#include "panels/form11.h"

#include <QApplication>
#include <QFontDatabase>
#include <QSlider>
#include <QTest>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(SliderFonts, LeaveWindowAndSliderTheirPlaceWhileANumberIsTyped)
{
    const QFont usual = QApplication::font();
    const QWidget palette;
    for (const QString& family : QFontDatabase::families()) {
        QApplication::setFont(QFont(family, 12));
        Form11 window("Vetro", palette);
        window.ShowStrength(0);
        window.show();
        QCoreApplication::processEvents();
        QSlider& slider = *window.findChild<QSlider*>("Slider1");
        const QSize size = window.size();
        const QRect place = slider.geometry();
        for (const char digit : {'7', '5'}) {
            QTest::keyClick(&slider, digit);
            QCoreApplication::processEvents();
            EXPECT_EQ(window.size(), size) << family.toStdString();
            EXPECT_EQ(slider.geometry(), place) << family.toStdString();
        }
        EXPECT_EQ(slider.value(), 75);
    }
    QApplication::setFont(usual);
}

}  // namespace
}  // namespace pixano::test
