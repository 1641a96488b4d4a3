// Numbers typed into windows that really have the keyboard.
#include "panels/form11.h"
#include "panels/form8.h"
#include "screen/desktop.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace pixano::test {
namespace {

/// Counts the keys that are pressed, in whichever window.
struct KeyCount : QObject {
    KeyCount() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && watched->isWindowType()) ++count;
        return false;
    }
    qsizetype count = 0;
};

class Typing : public Desktop {
  protected:
    /// Shows the window, and waits until keys go to it.
    static void ShowFocused(QWidget& window)
    {
        window.show();
        Activate(window);
    }
    /// Types every key, and waits until all of them have arrived.
    static void Type(const QString& keys)
    {
        const KeyCount pressed;
        Do("key --delay 1 " + keys);
        const auto count = keys.split(QRegularExpression("[ +]")).size();
        // Shift may come with some of them.
        EXPECT_TRUE(ComesToHold([&] { return pressed.count >= count; })) << keys.toStdString();
    }
};

TEST_F(Typing, AColourSubtractionIsNotCompletedFromTheList)
{
    for (const char* const keys : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "1 8"}) {
        Subtraction result;
        Form8 window(result);
        ShowFocused(window);
        auto* const edit = window.findChild<QComboBox*>("Combo1")->lineEdit();
        EXPECT_TRUE(ComesToHold([&] { return edit->hasFocus(); }));
        edit->selectAll();
        Type(keys);
        const QString typed = QString(keys).remove(' ');
        EXPECT_TRUE(ComesToHold([&] { return edit->text() == typed; }))
            << edit->text().toStdString();
        EXPECT_EQ(result.TestoSottrazione, typed);
        Type("Return");
        EXPECT_TRUE(ComesToHold([&] { return !window.isVisible(); })) << "one Return is enough";
        EXPECT_EQ(result.ValoreSottrazione, typed);
    }
}

TEST_F(Typing, AColourSubtractionThatIsShownAlreadyCanBeChosen)
{
    Subtraction result;
    Form8 window(result);
    ShowFocused(window);
    EXPECT_EQ(result.TestoSottrazione, "");
    const QWidget& list = *window.findChild<QComboBox*>("Combo1")->view();
    Type("alt+Down");
    EXPECT_TRUE(ComesToHold([&] { return list.isVisible(); }));
    Type("Return");
    EXPECT_TRUE(ComesToHold([&] { return result.TestoSottrazione == "20"; }));
}

struct Typed {
    const char* keys;
    int value;
    const char* seen;
};

TEST_F(Typing, AStrengthTakesWholeNumbersAsPeopleWriteThem)
{
    Form11 window("Vetro", session.form10);
    ShowFocused(window);
    auto* const slider = window.findChild<QSlider*>("Slider1");
    for (const auto& [keys, value, seen] : {Typed{"7 period 5 0 0", 7500, "7.500"},
                                            {"1 space 0 0 0", 1000, "1 000"},
                                            {"1 apostrophe 0 0 0", 1000, "1'000"},
                                            {"7 comma 5", 7, "7,5"},
                                            {"7 period 5", 7, "7.5"},
                                            {"1 period 2 5 0 comma 9", 1250, "1.250,9"},
                                            {"4 Shift_L 2 Control_L 5", 425, "425"},
                                            {"1 2 0 0 0", 10000, "10000"},
                                            {"1 0 period 0 0 1", 10000, "10000"},
                                            {"0 0 7", 7, "007"},
                                            {"KP_3 KP_2", 32, "32"},
                                            {"2 5 BackSpace", 2, "2"},
                                            {"2 comma BackSpace 5", 25, "25"}}) {
        window.ShowStrength(5000);
        Type("Home");
        Type(keys);
        EXPECT_TRUE(ComesToHold([&, v = value] { return slider->value() == v; }))
            << keys << " gives " << slider->value();
        EXPECT_EQ(window.findChild<QLabel*>("Label1")->text(), QString::number(value)) << keys;
        EXPECT_EQ(window.findChild<QLabel*>("Typed")->text(), QString::fromUtf8(seen)) << keys;
    }
}

TEST_F(Typing, AStrengthWithoutHaste)
{
    Form11 window("Vetro", session.form10);
    ShowFocused(window);
    auto* const slider = window.findChild<QSlider*>("Slider1");
    Type("7");
    // A person who thinks: it is not waited for anything, and nothing may come of it.
    QTest::qWait(1100);
    Type("5");
    EXPECT_TRUE(ComesToHold([&] { return slider->value() == 75; }));
    // Another hand ends the number, and nothing of it is seen any more.
    Type("Right");
    EXPECT_EQ(slider->value(), 175);
    EXPECT_EQ(window.findChild<QLabel*>("Typed")->text(), "");
    Type("3");
    EXPECT_TRUE(ComesToHold([&] { return slider->value() == 3; }));
}

TEST_F(Typing, TheSliderShowsThatItHasTheFocus)
{
    Form11 window("Vetro", session.form10);
    ShowFocused(window);
    auto* const slider = window.findChild<QSlider*>("Slider1");
    EXPECT_TRUE(ComesToHold([&] { return slider->hasFocus(); }));
    const QImage with = slider->grab().toImage();
    Type("Tab");
    ASSERT_TRUE(ComesToHold([&] { return !slider->hasFocus(); }));
    EXPECT_NE(slider->grab().toImage(), with);
}

}  // namespace
}  // namespace pixano::test
