#include "panels/form8.h"

#include "panels/asked.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

#include <gtest/gtest.h>

#include <ostream>

namespace pixano::test {
namespace {

class SubtractionWindow : public testing::Test {
  protected:
    SubtractionWindow() { window.show(); }

    QComboBox& Combo() { return *window.findChild<QComboBox*>("Combo1"); }
    std::string Text() { return Combo().currentText().toStdString(); }
    std::string Live() const { return result.TestoSottrazione.toStdString(); }
    std::string Confirmed() const { return result.ValoreSottrazione.toStdString(); }

    /// Types the text in place of what stands there, key by key.
    void Type(const char* keys)
    {
        Combo().lineEdit()->selectAll();
        QTest::keyClicks(&Combo(), keys);
    }

    Subtraction result;
    Form8 window{result};
};

TEST_F(SubtractionWindow, OffersTenSteps)
{
    EXPECT_EQ(window.windowTitle(), "Parametri");
    EXPECT_EQ(window.findChild<QLabel*>("Label1")->text(), "Sottrazione Colore");
    EXPECT_EQ(window.findChild<QPushButton*>("Command1")->text(), "OK");
    EXPECT_TRUE(window.findChild<QPushButton*>("Command1")->isDefault());
    EXPECT_EQ(window.findChild<QPushButton*>("Command2")->text(), "Annulla");
    EXPECT_EQ(Text(), "20");
    QStringList offered;
    for (int i = 0; i < Combo().count(); ++i)
        offered.append(Combo().itemText(i));
    EXPECT_EQ(offered,
              QStringList({"20", "40", "60", "80", "100", "120", "140", "160", "180", "200"}));
}

TEST_F(SubtractionWindow, StandsInTheMiddleOfTheScreen)
{
    const QSize free = window.screen()->size() - window.size();
    EXPECT_LE(std::abs(2 * window.pos().x() - free.width()), 1);
    EXPECT_LE(std::abs(2 * window.pos().y() - free.height()), 1);
}

struct Bound {
    const char* typed;
    const char* text;

    friend std::ostream& operator<<(std::ostream& out, const Bound& bound)
    {
        return out << '"' << bound.typed << '"';
    }
};

class BoundText : public SubtractionWindow, public testing::WithParamInterface<Bound> {};

INSTANTIATE_TEST_SUITE_P(Typed, BoundText,
                         testing::Values(Bound{"0", "10"}, Bound{"250", "200"}, Bound{"5", "5"},
                                         Bound{"1", "1"}, Bound{"9", "9"}, Bound{"200", "200"},
                                         Bound{"201", "200"}, Bound{"37", "37"},
                                         Bound{"12abc", "12abc"}));

TEST_P(BoundText, IsWhatTheTextBecomes)
{
    Type(GetParam().typed);
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Live(), GetParam().text);
}

class PastedText : public SubtractionWindow, public testing::WithParamInterface<Bound> {};

INSTANTIATE_TEST_SUITE_P(Text, PastedText,
                         testing::Values(Bound{"", "10"}, Bound{"venti", "10"}, Bound{"-3", "10"},
                                         Bound{"0.99", "10"}, Bound{"1.5", "1.5"},
                                         Bound{"200.5", "200"}, Bound{"1e3", "200"},
                                         Bound{" 40", " 40"}, Bound{"1e999", "200"},
                                         Bound{"inf", "10"}, Bound{"+7", "+7"}));

TEST_P(PastedText, IsBoundAtTheNextKeyReleaseOnly)
{
    Combo().setEditText(GetParam().typed);
    EXPECT_EQ(Text(), GetParam().typed);
    EXPECT_EQ(Live(), GetParam().typed);
    QTest::keyRelease(Combo().lineEdit(), Qt::Key_Shift);
    EXPECT_EQ(Text(), GetParam().text);
    EXPECT_EQ(Live(), GetParam().text);
}

TEST_F(SubtractionWindow, FollowsAChoiceFromTheList)
{
    Combo().setCurrentIndex(6);
    EXPECT_EQ(Live(), "140");
    EXPECT_EQ(Confirmed(), "");
}

TEST_F(SubtractionWindow, KeepsTheTextAtOK)
{
    ClickButton(window, "Command1");
    EXPECT_EQ(Live(), "20");
    EXPECT_EQ(Confirmed(), "20");
    EXPECT_EQ(result.ParametriAnnullati, 0);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SubtractionWindow, KeepsWhatWasTypedAtReturn)
{
    Type("77");
    QTest::keyClick(&Combo(), Qt::Key_Return);
    EXPECT_EQ(Confirmed(), "77");
    EXPECT_FALSE(window.isVisible());
    // What was typed is nothing that the list offers from then on.
    EXPECT_EQ(Combo().count(), 10);
    EXPECT_EQ(Combo().findText("77"), -1);
}

TEST_F(SubtractionWindow, KeepsNothingAtAnnulla)
{
    Type("77");
    ClickButton(window, "Command2");
    EXPECT_EQ(Live(), "77");
    EXPECT_EQ(Confirmed(), "");
    EXPECT_EQ(result.ParametriAnnullati, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SubtractionWindow, TakesEscapeForAnnulla)
{
    QTest::keyClick(&Combo(), Qt::Key_Escape);
    EXPECT_EQ(result.ParametriAnnullati, 1);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace pixano::test
