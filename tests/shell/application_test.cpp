// What the application is like whatever its windows are: its name, its icon, its language, its end.
#include "shell/application.h"
#include "shell/program.h"
#include "support/program.h"
#include "windows/own_style.h"

#include <QIcon>
#include <QLocale>
#include <QProxyStyle>

namespace pixano::test {
namespace {

TEST(Application, HasItsNameVersionAndIcons)
{
    EXPECT_EQ(QApplication::applicationName(), "pixano");
    EXPECT_EQ(QApplication::applicationVersion(), "2.3");
    const QIcon icon = QApplication::windowIcon();
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
}

TEST(Application, SpeaksItalian)
{
    EXPECT_EQ(QLocale().language(), QLocale::Italian);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes").remove('&'), "Sì");
    EXPECT_TRUE(QApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
}

TEST(Application, EndsAtItsOwnCommandAndNotWithItsLastWindow)
{
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

class NoDataFolder : public testing::Test, protected Folders {};

TEST_F(NoDataFolder, IsToldAndEndsTheProgramByAnError)
{
    WriteBytes((Root() + "/data").toStdString(), "a file where the folder should be");
    ScriptedDialogs dialogs;
    EXPECT_EQ(RunOrTell(dialogs, {}), 1);
    ASSERT_EQ(dialogs.told.size(), 1U);
    const ShownBox& box = dialogs.told[0];
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_EQ(box.title, "Attenzione!");
    EXPECT_TRUE(box.text.contains(Root() + "/data/pixano")) << box;
    EXPECT_TRUE(box.text.endsWith('.')) << box;
}

// The buttons of boxes would be as the desktop's, with or without.
TEST(Application, ShowsNoIconsOnTheButtonsOfBoxes)
{
    class WithIcons : public QProxyStyle {
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* details) const override
        {
            return hint == SH_DialogButtonBox_ButtonsHaveIcons
                       ? 1
                       : QProxyStyle::styleHint(hint, option, widget, details);
        }
    };
    OwnStyle style;
    style.setBaseStyle(new WithIcons);
    const QStyle& shown = style;
    EXPECT_EQ(shown.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
}

}  // namespace
}  // namespace pixano::test
