// The slider window by itself, shown with a strength of 5000.
#pragma once

#include "panels/asked.h"
#include "panels/form11.h"

#include <QLabel>
#include <QSlider>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace pixano::test {

class SliderWindow : public testing::Test {
  protected:
    SliderWindow()
    {
        QObject::connect(&window, &Form11::Moved, [this](int value) { moves.push_back(value); });
        window.show();
        window.ShowStrength(5000);
        moves.clear();
    }

    /// A window that stands where the palette may stand.
    static const QWidget& Palette()
    {
        static QWidget palette;
        palette.move(300, 7);
        palette.resize(209, 410);
        return palette;
    }

    QSlider& Slider() { return *window.findChild<QSlider*>("Slider1"); }
    std::string Label() { return window.findChild<QLabel*>("Label1")->text().toStdString(); }
    void Type(const char* keys) { QTest::keyClicks(&Slider(), keys); }
    /// The wheel, by so many eighths of a degree; a notch is 120.
    void Turn(int eighths)
    {
        const QPointF middle = QRectF(Slider().rect()).center();
        QWheelEvent event(middle, Slider().mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Slider(), &event);
    }
    void Key(Qt::Key key) { QTest::keyClick(&Slider(), key); }

    /// Slider and label show the value, and it was told last.
    void ExpectMovedTo(int value)
    {
        EXPECT_EQ(Slider().value(), value);
        EXPECT_EQ(Label(), std::to_string(value));
        ASSERT_FALSE(moves.empty());
        EXPECT_EQ(moves.back(), value);
    }

    Form11 window{"Vetro", Palette()};
    std::vector<int> moves;
};

}  // namespace pixano::test
