// What the frames of the windows take, known only once a window is there, changes no place and no
// size.
#include "screen/desktop.h"

namespace pixano::test {
namespace {

/// How many rows of the screen a picture's preview leaves: as many as frames take, about.
class NearlyAsHighAsTheScreen : public Desktop, public testing::WithParamInterface<int> {};

TEST_P(NearlyAsHighAsTheScreen, APictureHasTheSamePlacesOnEveryOpening)
{
    const QSize screen = session.form1.screen()->availableSize();
    const int width = screen.width() - 100;
    const int height = qRound((screen.height() - GetParam()) * 15 / 15.2);
    OpenSized(width, height);
    const QRect canvas = session.form2.geometry();
    const QRect preview = session.form9.geometry();
    OpenSized(40, 30);
    OpenSized(width, height);
    EXPECT_TRUE(Stays([&] { return session.form2.geometry() == canvas; }));
    EXPECT_TRUE(Stays([&] { return session.form9.geometry() == preview; }));
}

INSTANTIATE_TEST_SUITE_P(ByRowsLeft, NearlyAsHighAsTheScreen, testing::Values(10, 70, 110));

}  // namespace
}  // namespace pixano::test
