// The arrow keys walk the palette as the eye does.
#include "panels/form10.h"
#include "shell/controls.h"

#include <QTest>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

class PaletteKeys : public testing::Test {
  protected:
    PaletteKeys()
    {
        palette.show();
        palette.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&palette));
    }

    /// The buttons that the keys lead to, one after another, from the one that has the focus.
    QStringList Walk(std::initializer_list<Qt::Key> keys)
    {
        QStringList passed;
        for (const Qt::Key key : keys) {
            QTest::keyClick(palette.focusWidget(), key);
            passed += palette.focusWidget()->objectName();
        }
        return passed;
    }
    void StartFrom(const char* name) { palette.findChild<QPushButton*>(name)->setFocus(); }

    static constexpr Qt::Key Down = Qt::Key_Down;
    static constexpr Qt::Key Up = Qt::Key_Up;
    static constexpr Qt::Key Left = Qt::Key_Left;
    static constexpr Qt::Key Right = Qt::Key_Right;

    Form10 palette{PaletteButtons()};
};

TEST_F(PaletteKeys, WalkDownAColumnAndUpAgain)
{
    StartFrom("SSCommand7");
    EXPECT_EQ(Walk({Down, Down, Down, Down, Down, Down, Down, Down, Down}),
              (QStringList{"SSCommand11", "SSCommand24", "SSCommand2", "SSCommand3", "SSCommand5",
                           "SSCommand18", "SSCommand20", "SSCommand22", "Command1"}));
    EXPECT_EQ(Walk({Up, Up}), (QStringList{"SSCommand22", "SSCommand20"}));
    // Where the rows differ, to what lies nearest.
    StartFrom("SSCommand26");
    EXPECT_EQ(Walk({Down}), QStringList{"SSCommand1"});
    StartFrom("SSCommand10");
    EXPECT_EQ(Walk({Up, Down}), (QStringList{"SSCommand17", "SSCommand10"}));
}

TEST_F(PaletteKeys, WalkAlongARowAndStayAtItsEnds)
{
    StartFrom("SSCommand2");
    EXPECT_EQ(Walk({Left, Right, Right, Left}),
              (QStringList{"SSCommand2", "SSCommand1", "SSCommand1", "SSCommand2"}));
    StartFrom("SSCommand7");
    EXPECT_EQ(Walk({Right, Right, Right, Right}),
              (QStringList{"SSCommand8", "SSCommand9", "SSCommand10", "SSCommand10"}));
}

TEST_F(PaletteKeys, PassOverWhatIsSwitchedOff)
{
    palette.EnableHistory({.annulla = false, .originale = false, .ripristina = false});
    StartFrom("SSCommand7");
    EXPECT_EQ(Walk({Up}), QStringList{"SSCommand7"});
    palette.EnableHistory({.annulla = true, .originale = true, .ripristina = false});
    EXPECT_EQ(Walk({Up, Right, Right}), (QStringList{"SSCommand15", "SSCommand16", "SSCommand16"}));
    palette.EnableHistory({.annulla = true, .originale = false, .ripristina = true});
    StartFrom("SSCommand15");
    EXPECT_EQ(Walk({Right}), QStringList{"SSCommand17"});
}

TEST_F(PaletteKeys, AreNoChoice)
{
    int pressed = 0;
    QObject::connect(&palette, &Form10::Pressed, [&] { ++pressed; });
    StartFrom("SSCommand7");
    Walk({Down, Down, Right, Up, Left});
    EXPECT_EQ(pressed, 0);
    QTest::keyClick(palette.focusWidget(), Qt::Key_Space);
    QTest::keyClick(palette.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(pressed, 2);
}

}  // namespace
}  // namespace pixano::test
