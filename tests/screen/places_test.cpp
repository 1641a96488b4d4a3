// Where the window manager really puts the windows, and what of a picture is seen in them.
#include "screen/desktop.h"

namespace pixano::test {
namespace {

struct Sized {
    int width;
    int height;
};

class Places : public Desktop {
  protected:
    QRect Canvas() const { return session.form2.frameGeometry(); }
    QRect Preview() const { return session.form9.frameGeometry(); }
    /// Moves the preview as a person does; gives where it stands then.
    QPoint PreviewMovedByHand()
    {
        const auto there = [this] { return session.form9.x() > 400 && session.form9.x() < 600; };
        // At first it is taken for the window manager: a person who sees the window go back moves
        // it once more.
        EXPECT_TRUE(ComesToHold([&] {
            Do("windowmove " + Id(session.form9) + " 500 430");
            return Stays(there);
        }));
        return session.form9.pos();
    }
    int StripLeft() const { return session.form1.screen()->geometry().right() + 1 - 217; }
    /// Whether it is smaller than what it shows.
    static bool IsHeld(const HeldWindow& window)
    {
        const QSize whole = window.widget()->size();
        return window.width() < whole.width() || window.height() < whole.height();
    }
    /// The title bars, without what the frame has at the sides.
    static QRect TitleOf(const QWidget& window)
    {
        const QRect frame = window.frameGeometry();
        return {frame.topLeft(), QSize(frame.width(), window.geometry().top() - frame.top())};
    }
};

TEST_F(Places, TheMainWindowNoWiderThanItsMenusLookGood)
{
    // Beside a palette at either side there would be room for 838.
    EXPECT_EQ(session.form1.width(), 520);
}

TEST_F(Places, LeaveThePaletteFreeWhereAPictureIsHeld)
{
    // In one direction and in both, after a small picture each time.
    for (const auto& [width, height] : {Sized{2000, 2000}, Sized{2000, 50}, Sized{50, 2000},
                                        Sized{1200, 2000}, Sized{1100, 900}}) {
        OpenSized(40, 30);
        OpenSized(width, height);
        for (const HeldWindow* const window :
             std::initializer_list<HeldWindow*>{&session.form2, &session.form9}) {
            if (!IsHeld(*window)) continue;
            EXPECT_TRUE(Stays([&] { return window->frameGeometry().right() < StripLeft(); }))
                << window->objectName().toStdString() << " of " << width << "x" << height;
        }
    }
}

TEST_F(Places, ThePreviewInItsCornerOnEveryOpening)
{
    OpenSized(200, 100);
    const QPoint corner = Preview().bottomRight();
    OpenSized(2000, 2000);
    OpenSized(200, 100);
    EXPECT_TRUE(Stays([&] { return Preview().bottomRight() == corner; }));
    EXPECT_FALSE(Preview().intersects(Canvas()));
    // Beside the canvas a high one may begin above the canvas's title, on which the one before lay.
    for (const auto& [width, height] : {Sized{400, 300}, Sized{910, 910}, Sized{100, 900}}) {
        OpenSized(width, height);
        if (width == 910) continue;
        EXPECT_TRUE(Stays([&] { return Preview().bottomRight() == corner; })) << width;
    }
}

TEST_F(Places, ThePreviewBesideThePaletteAsLongAsItFitsThere)
{
    OpenSized(500, 300);
    for (int width = 500; width < StripLeft() - 50; width = width * 13 / 10) {
        SCOPED_TRACE(width);
        EXPECT_TRUE(StaysOnceAnswered([&] { return Preview().right() < StripLeft(); }));
        Button("Command1").click();
    }
}

TEST_F(Places, ThePreviewAtTheLeftWhereItHasNoRoomBesideThePalette)
{
    OpenSized(850, 300);
    Button("Command1").click();
    EXPECT_TRUE(StaysOnceAnswered(
        [this] { return Preview().left() == session.form1.screen()->geometry().left(); }));
    EXPECT_FALSE(IsHeld(session.form9));
    EXPECT_GT(Preview().right(), StripLeft());
}

TEST_F(Places, ThePreviewWhereTheUserHasMovedIt)
{
    OpenSized(200, 100);
    const QPoint moved = PreviewMovedByHand();
    OpenSized(220, 120);
    EXPECT_EQ(session.form9.pos(), moved);
}

TEST_F(Places, ThePreviewInItsCornerAgainOnceItWasClosed)
{
    OpenSized(200, 100);
    const QPoint corner = Preview().bottomRight();
    PreviewMovedByHand();
    // Its new size is where it was moved to.
    Apply("Specchio");
    session.doc.Modificato = 0;
    session.form2.close();
    for (const int width : {200, 300}) {
        OpenSized(width, 100);
        EXPECT_TRUE(Stays([&] { return Preview().bottomRight() == corner; })) << width;
    }
}

TEST_F(Places, ThePreviewBackThereOnceALargePictureNeedsNoRoomAnyMore)
{
    OpenSized(200, 100);
    const QPoint moved = PreviewMovedByHand();
    OpenSized(2000, 2000);
    EXPECT_NE(session.form9.pos(), moved);
    OpenSized(200, 100);
    EXPECT_TRUE(Stays([&] { return session.form9.pos() == moved; }));
}

TEST_F(Places, ThePreviewBackInItsCornerOnceItIsAsSmallAgain)
{
    OpenSized(400, 300);
    const QRect before = Preview();
    for (int i = 0; i < 4; ++i)
        Button("Command1").click();
    EXPECT_TRUE(StaysOnceAnswered([&] { return Preview().topLeft() != before.topLeft(); }));
    for (int i = 0; i < 5; ++i)
        Button("Command2").click();
    EXPECT_TRUE(StaysOnceAnswered([&] { return Preview().topLeft() == before.topLeft(); }));
}

TEST_F(Places, ThePaletteAboveTheCanvasOnEveryOpening)
{
    OpenSized(600, 400);
    Do(QString("windowmove --sync %1 550 100").arg(Id(session.form10)));
    // A part of it, not so much that it would come along.
    Cover(session.form10, session.form2);
    OpenSized(600, 300);
    EXPECT_TRUE(Stays([this] { return IsAbove(session.form10, session.form2); }));
}

TEST_F(Places, ThePreviewAboveTheCanvasOnEveryOpening)
{
    OpenSized(400, 300);
    for (const int side : {2000, 300, 1500}) {
        Cover(session.form9, session.form2);
        OpenSized(side, side);
        EXPECT_TRUE(Stays([this] { return IsAbove(session.form9, session.form2); })) << side;
    }
}

TEST_F(Places, ALargeCanvasBesideThePaletteAsItAppears)
{
    OpenSized(2000, 2000);
    EXPECT_TRUE(StaysOnceAnswered(
        [this] { return !session.form2.isMaximized() && Canvas().right() < StripLeft(); }));
    EXPECT_FALSE(session.form9.isMaximized());
    EXPECT_EQ(session.form10.y(), session.form10.screen()->geometry().top());
}

TEST_F(Places, TheTitlesOfCanvasAndPreviewApart)
{
    // Much too large, and just so large that it fits, but not below the title too.
    for (const int side : {2000, 890, 900, 910, 920, 930}) {
        OpenSized(side, side);
        EXPECT_TRUE(Stays([this] {
            return !TitleOf(session.form9).intersects(TitleOf(session.form2)) &&
                   !Preview().contains(TitleOf(session.form2));
        })) << side;
        EXPECT_TRUE(ComesToHold([this] {
            return session.form9.screen()->geometry().contains(Preview());
        })) << side;
    }
}

TEST_F(Places, ABarWhereverColumnsOrRowsAreNotSeen)
{
    for (const auto& [width, height] : {Sized{100, 2000}, Sized{2000, 100}, Sized{2000, 2000}}) {
        OpenSized(width, height);
        for (const HeldWindow* const window :
             std::initializer_list<HeldWindow*>{&session.form2, &session.form9}) {
            const QSize seen = window->viewport()->size();
            const QSize whole = window->widget()->size();
            EXPECT_EQ(window->horizontalScrollBar()->isVisible(), seen.width() < whole.width())
                << width << "x" << height;
            EXPECT_EQ(window->verticalScrollBar()->isVisible(), seen.height() < whole.height());
        }
    }
}

TEST_F(Places, AllColumnsAndRowsOfSmallPictures)
{
    for (const int side : {1, 10, 39, 100}) {
        OpenSized(side, side);
        EXPECT_TRUE(QRect({}, session.form2.viewport()->size())
                        .contains(QRect({}, session.form2.Picture1().size())))
            << side;
    }
}

}  // namespace
}  // namespace pixano::test
