// A desk whose desktop keeps a panel at an edge, as most do: no window lies below that.
#include "screen/desktop.h"
#include "shell/spy_effect.h"
#include "support/modal_steps.h"
#include "windows/screen_dialogs.h"

#include <QDialog>
#include <QDir>

namespace pixano::test {
namespace {

constexpr int Thickness = 40;

/// The desktop's panel: the window managers take its room from that of the others.
class Panel {
  public:
    explicit Panel(Qt::Edge edge) : edge_(edge), screen_(*ScreenAt(edge))
    {
        QRect place = screen_.geometry();
        if (edge == Qt::LeftEdge) place.setWidth(Thickness);
        if (edge == Qt::TopEdge) place.setHeight(Thickness);
        if (edge == Qt::RightEdge) place.setLeft(place.right() + 1 - Thickness);
        if (edge == Qt::BottomEdge) place.setTop(place.bottom() + 1 - Thickness);
        bar_.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        bar_.setGeometry(place);
        Output("xprop", {"-id", Id(bar_), "-f", "_NET_WM_STRUT_PARTIAL", "32c", "-set",
                         "_NET_WM_STRUT_PARTIAL", Strut(place)});
        bar_.show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Free().intersects(place); }));
    }
    ~Panel()
    {
        bar_.hide();
        EXPECT_TRUE(QTest::qWaitFor([this] { return Free() == screen_.geometry(); }));
    }
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// What it leaves of its screen.
    QRect Free() const { return screen_.availableGeometry(); }

  private:
    /// The one whose edge is the desk's.
    static QScreen* ScreenAt(Qt::Edge edge)
    {
        return edge == Qt::RightEdge ? QApplication::screens().back()
                                     : QApplication::primaryScreen();
    }
    /// How far the panel reaches from the edges of the whole desk, left, right, top and bottom, and
    /// along which part of each.
    QString Strut(const QRect& place) const
    {
        const QRect desk = screen_.virtualGeometry();
        QStringList reach;
        QStringList along;
        const auto side = [&](Qt::Edge edge, int far, int from, int to) {
            const bool there = edge == edge_;
            reach += QString::number(there ? far : 0);
            along += QString("%1, %2").arg(there ? from : 0).arg(there ? to : 0);
        };
        side(Qt::LeftEdge, place.right() + 1, place.top(), place.bottom());
        side(Qt::RightEdge, desk.right() + 1 - place.left(), place.top(), place.bottom());
        side(Qt::TopEdge, place.bottom() + 1, place.left(), place.right());
        side(Qt::BottomEdge, desk.bottom() + 1 - place.top(), place.left(), place.right());
        return (reach + along).join(", ");
    }

    const Qt::Edge edge_;
    const QScreen& screen_;
    QWidget bar_;
};

class BesidePanel : public testing::WithParamInterface<Qt::Edge>, protected Panel, public Desktop {
  protected:
    BesidePanel() : Panel(GetParam())
    {
        const QPoint middle = Free().center();
        Do(QString("windowmove --sync %1 %2 %3")
               .arg(Id(session.form1))
               .arg(middle.x())
               .arg(middle.y()));
        EXPECT_TRUE(ComesToHold([this] { return IsFree(session.form1); }));
    }

    bool IsFree(const QWidget& window) const { return Free().contains(window.frameGeometry()); }
    /// Where the toolkit chooses a place it leaves less for the sides of a frame than some have,
    /// which are there for the mouse and not seen.
    bool IsFreeButForItsSides(const QWidget& window) const
    {
        QRect seen = window.geometry();
        seen.setTop(window.frameGeometry().top());
        return Free().contains(seen);
    }
};

INSTANTIATE_TEST_SUITE_P(Edges, BesidePanel,
                         testing::Values(Qt::TopEdge, Qt::LeftEdge, Qt::RightEdge, Qt::BottomEdge));

TEST_P(BesidePanel, StandTheWindowsOfSmallAndLargePictures)
{
    for (const int side : {200, 3000}) {
        SCOPED_TRACE(side);
        OpenSized(side, side);
        const QPoint corner = Free().topLeft();
        EXPECT_TRUE(Stays([&] { return session.form2.pos() == corner; }));
        EXPECT_EQ(session.form10.pos(), corner + QPoint(Free().width() - 217, 0));
        EXPECT_TRUE(Stays([&] { return IsFree(session.form2) && IsFree(session.form9); }));
        EXPECT_TRUE(IsFree(session.form1));
    }
}

TEST_P(BesidePanel, StandsTheProgressWindow)
{
    OpenSized(300, 200);
    bool seen = false;
    SpyAction() = [&](Work& w) {
        w.ShowProgress();
        seen = IsFree(session.form4);
    };
    RunInFrame(Spy());
    SpyAction() = nullptr;
    EXPECT_TRUE(seen);
}

TEST_P(BesidePanel, StandsWhatAsksAndInforms)
{
    ScreenDialogs real;
    std::vector<std::function<void()>> opened = Questions(real);
    for (const int index : {entry::Inf, entry::Inter})
        opened.push_back([this, index] { ClickEntry(index); });
    for (const auto& open : opened) {
        Activate(session.form1);
        const ModalSteps steps({[this](QDialog& dialog) {
            EXPECT_TRUE(ComesToHold([&] { return IsActive(dialog); }));
            EXPECT_TRUE(Stays([&] { return IsFreeButForItsSides(dialog); }))
                << dialog.windowTitle().toStdString() << " begins at " << dialog.x() << ","
                << dialog.y();
        }});
        open();
    }
}

}  // namespace
}  // namespace pixano::test
