// A desk whose desktop keeps a panel at an edge, as most do: no window lies below that.
#include "screen/desktop.h"

namespace pixano::test {
namespace {

constexpr int Thickness = 40;

/// The desktop's panel: the window managers take its room from that of the others.
class Panel {
  public:
    explicit Panel(Qt::Edge edge)
    {
        const QRect screen = QApplication::primaryScreen()->geometry();
        QRect place = screen;
        if (edge == Qt::LeftEdge) place.setWidth(Thickness);
        if (edge == Qt::TopEdge) place.setHeight(Thickness);
        if (edge == Qt::BottomEdge) place.setTop(screen.bottom() + 1 - Thickness);
        bar_.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        bar_.setGeometry(place);
        // It is told from the edge of the whole desk: first how far, then along what part of it.
        const QRect desk = QApplication::primaryScreen()->virtualGeometry();
        const int fromLeft = edge == Qt::LeftEdge ? place.right() + 1 : 0;
        const int fromTop = edge == Qt::TopEdge ? place.bottom() + 1 : 0;
        const int fromBottom = edge == Qt::BottomEdge ? desk.bottom() + 1 - place.top() : 0;
        const auto along = [edge](Qt::Edge is, int from, int to) {
            return edge == is ? QString("%1, %2").arg(from).arg(to) : QString("0, 0");
        };
        Output("xprop", {"-id", Id(bar_), "-f", "_NET_WM_STRUT_PARTIAL", "32c", "-set",
                         "_NET_WM_STRUT_PARTIAL",
                         QString("%1, 0, %2, %3, %4, 0, 0, %5, %6")
                             .arg(fromLeft)
                             .arg(fromTop)
                             .arg(fromBottom)
                             .arg(along(Qt::LeftEdge, place.top(), place.bottom()),
                                  along(Qt::TopEdge, place.left(), place.right()),
                                  along(Qt::BottomEdge, place.left(), place.right()))});
        bar_.show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Free().intersects(place); }));
    }
    ~Panel()
    {
        bar_.hide();
        EXPECT_TRUE(
            QTest::qWaitFor([] { return Free() == QApplication::primaryScreen()->geometry(); }));
    }
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// What it leaves of its screen.
    static QRect Free() { return QApplication::primaryScreen()->availableGeometry(); }

  private:
    QWidget bar_;
};

class BesidePanel : public testing::WithParamInterface<Qt::Edge>, protected Panel, public Desktop {
  protected:
    BesidePanel() : Panel(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Edges, BesidePanel,
                         testing::Values(Qt::TopEdge, Qt::LeftEdge, Qt::BottomEdge));

TEST_P(BesidePanel, StandTheWindowsOfSmallAndLargePictures)
{
    for (const int side : {200, 3000}) {
        SCOPED_TRACE(side);
        OpenSized(side, side);
        const QPoint corner = Free().topLeft();
        EXPECT_TRUE(Stays([&] { return session.form2.pos() == corner; }));
        EXPECT_EQ(session.form10.pos(), corner + QPoint(Free().width() - 217, 0));
        EXPECT_TRUE(Stays([&] { return Free().contains(session.form2.frameGeometry()); }));
        EXPECT_TRUE(Stays([&] { return Free().contains(session.form9.frameGeometry()); }));
        EXPECT_TRUE(Free().contains(session.form1.frameGeometry()));
    }
}

}  // namespace
}  // namespace pixano::test
