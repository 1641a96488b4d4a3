// What the application is like whatever its windows are: its name, its icon, its language, its end.
#include "support/program.h"

#include <QIcon>
#include <QLocale>

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

}  // namespace
}  // namespace pixano::test
