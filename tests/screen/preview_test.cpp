// The preview as it is painted, and as it is moved about by wheel and mouse.
#include "screen/desktop.h"

namespace pixano::test {
namespace {

class SeenPreview : public Desktop {
  protected:
    Form9& Preview() { return session.form9; }
    /// Where the middle of what is seen lies in the picture, from 0 to 1.
    QPointF Middle()
    {
        const QPoint seen = Preview().viewport()->rect().center() - Preview().Image1().pos();
        return {static_cast<double>(seen.x()) / Preview().Image1().width(),
                static_cast<double>(seen.y()) / Preview().Image1().height()};
    }
    void EnlargeUntilHeld()
    {
        Do("windowmove " + Id(Preview()) + " 20 100");
        for (int i = 0; i < 12; ++i)
            Button("Command1").click();
        EXPECT_TRUE(Stays([this] {
            return Preview().horizontalScrollBar()->maximum() > 300 &&
                   Preview().verticalScrollBar()->maximum() > 300;
        }));
    }
    /// Moves the pointer into the preview, and does that there.
    void There(const QString& commands)
    {
        const QPoint place = Preview().viewport()->mapToGlobal(QPoint(200, 200));
        Preview().raise();
        Do(QString("mousemove %1 %2").arg(place.x()).arg(place.y()));
        EXPECT_TRUE(ComesToHold([this] { return Preview().viewport()->underMouse(); }));
        Do(commands);
    }
    QPoint Scrolled()
    {
        return {Preview().horizontalScrollBar()->value(), Preview().verticalScrollBar()->value()};
    }
};

/// How much black the lines of an image have in that row, in pixels: of the faintest line and of
/// the thickest.
std::pair<double, double> InkOfLines(const QImage& image, int row)
{
    constexpr int Paper = 250;
    std::pair<double, double> ink{1e9, 0};
    for (int x = 0; x < image.width(); ++x) {
        double line = 0;
        for (; x < image.width() && qRed(image.pixel(x, row)) < Paper; ++x)
            line += (255 - qRed(image.pixel(x, row))) / 255.0;
        if (line > 0) ink = {std::min(ink.first, line), std::max(ink.second, line)};
    }
    return ink;
}

// Where it was pulled half out of sight, a command that leaves its size alone leaves it there too.
TEST_F(SeenPreview, StaysWhereItWasMovedWhileItsSizeStays)
{
    OpenSized(300, 200);
    Apply("Specchio");
    const QRect frame = Preview().frameGeometry();
    const int bottom = Preview().screen()->availableGeometry().bottom();
    const auto isHalfSeen = [&] { return Preview().frameGeometry().bottom() > bottom; };
    Do(QString("windowmove %1 %2 %3").arg(Id(Preview())).arg(frame.x()).arg(bottom - 100));
    // Some window managers move it so by the mouse alone.
    if (!StaysOnceAnswered(isHalfSeen))
        Do(QString("mousemove %1 %2 mousedown 1 sleep 0.1 mousemove_relative 0 -20 sleep 0.1 "
                   "mousemove %1 %3 sleep 0.1 mouseup 1")
               .arg(Preview().frameGeometry().center().x())
               .arg((Preview().frameGeometry().y() + Preview().geometry().y()) / 2)
               .arg(bottom - 100));
    EXPECT_TRUE(StaysOnceAnswered(isHalfSeen));
    const QPoint moved = Preview().pos();
    Apply("Capovolgi");
    EXPECT_TRUE(StaysOnceAnswered([&] { return Preview().pos() == moved; }));
    // A new size brings it back into sight.
    Button("Command1").click();
    EXPECT_TRUE(StaysOnceAnswered([&] { return Preview().pos().y() < moved.y(); }));
}

TEST_F(SeenPreview, HasLinesOfOneThicknessAtEveryFactor)
{
    // A black line in every twentieth column; each keeps its share of grey.
    constexpr int Lines = 20;
    Surface lines(20 * Lines, 20);
    for (int y = 0; y < lines.Height(); ++y)
        for (int x = 0; x < lines.Width(); ++x)
            lines.PSet(x, y, x % 20 == 9 ? 0 : White);
    Open("righe.bmp", lines);
    WaitForWindows();
    Apply("Specchio");
    for (const auto& [magnifier, width] : {std::pair("", 405),
                                           {"Command2", 284},
                                           {"Command2", 162},
                                           {"Command1", 284},
                                           {"Command1", 405},
                                           {"Command1", 527},
                                           {"Command1", 649}}) {
        if (*magnifier != '\0') Button(magnifier).click();
        const QImage image = Preview().Image1().grab().toImage();
        ASSERT_EQ(image.width(), width);
        const auto [faintest, thickest] = InkOfLines(image, image.height() / 2);
        const double factor = width / (20.0 * Lines);
        EXPECT_GT(faintest, 0.85 * factor) << width;
        EXPECT_LT(thickest, 1.15 * factor) << width;
    }
}

TEST_F(SeenPreview, KeepsItsMiddleWhileItIsZoomed)
{
    OpenSized(400, 400);
    EnlargeUntilHeld();
    Preview().horizontalScrollBar()->setValue(Preview().horizontalScrollBar()->maximum() * 3 / 4);
    Preview().verticalScrollBar()->setValue(Preview().verticalScrollBar()->maximum() / 4);
    const QPointF before = Middle();
    for (const char* const magnifier : {"Command1", "Command2", "Command1"}) {
        Button(magnifier).click();
        EXPECT_NEAR(Middle().x(), before.x(), 0.01) << magnifier;
        EXPECT_NEAR(Middle().y(), before.y(), 0.01) << magnifier;
    }
}

TEST_F(SeenPreview, ComesToTheFrontWhenItIsScaled)
{
    OpenSized(900, 700);
    for (const char* const magnifier : {"Command1", "Command2"}) {
        Cover(session.form9, session.form2);
        // The main window comes with it, and may have the focus for that; then somebody presses.
        QTest::qWait(4 * TimeToAnswer);
        session.form10.activateWindow();
        EXPECT_TRUE(ComesToHold([this] { return IsActive(session.form10); }));
        Button(magnifier).click();
        EXPECT_TRUE(ComesToHold([this] { return IsAbove(session.form9, session.form2); }));
        const auto keepsFocus = [this] { return IsActive(session.form10); };
        EXPECT_TRUE(RaisesWithFocus() ? StaysOnceAnswered(keepsFocus) : Stays(keepsFocus))
            << magnifier;
        EXPECT_TRUE(IsAbove(session.form10, session.form9));
    }
}

TEST_F(SeenPreview, LeavesTheMenusAboveItWhenItIsScaled)
{
    OpenSized(300, 200);
    // It covers fewer than half of them, and yet most of what is written there.
    session.form9.move(session.form1.pos() - QPoint(100, 50));
    Cover(session.form9, session.form1);
    for (const char* const magnifier : {"Command2", "Command1"}) {
        Button(magnifier).click();
        EXPECT_TRUE(StaysOnceAnswered([this] { return IsAbove(session.form1, session.form9); }))
            << magnifier;
    }
    // Who has put it above them sees it all.
    Cover(session.form1, session.form9);
    if (RaisesWithFocus()) return;
    Button("Command2").click();
    EXPECT_TRUE(StaysOnceAnswered([this] { return IsAbove(session.form9, session.form1); }));
}

TEST_F(SeenPreview, FollowsWheelAndHand)
{
    OpenSized(400, 400);
    EnlargeUntilHeld();
    const double zoom = session.doc.Zoom;
    There("keydown ctrl click 5 keyup ctrl");
    EXPECT_TRUE(ComesToHold([&] { return std::abs(session.doc.Zoom - zoom + 0.3) < 0.01; }));
    There("keydown ctrl click 4 keyup ctrl");
    EXPECT_TRUE(ComesToHold([&] { return std::abs(session.doc.Zoom - zoom) < 0.01; }));
    QPoint before = Scrolled();
    There("click 5");
    EXPECT_TRUE(ComesToHold([&] { return Scrolled().y() > before.y(); }));
    EXPECT_EQ(Scrolled().x(), before.x());
    before = Scrolled();
    There("keydown shift click 5 keyup shift");
    EXPECT_TRUE(ComesToHold([&] { return Scrolled().x() > before.x(); }));
    EXPECT_EQ(Scrolled().y(), before.y());
    before = Scrolled();
    There("mousedown 1 mousemove_relative -- -40 -30 mouseup 1");
    EXPECT_TRUE(ComesToHold([&] { return Scrolled() == before + QPoint(40, 30); }));
}

TEST_F(SeenPreview, IsAnnouncedByABarThatIsFull)
{
    // What the bar shows when the progress window goes.
    struct LastPaint : QObject {
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted = static_cast<QProgressBar*>(watched)->value();
            return false;
        }
        int painted = -1;
    } last;
    OpenSized(300, 200);
    session.form4.findChild<QProgressBar*>("ProgressBar1")->installEventFilter(&last);
    for (const char* const effect : {"Specchio", "Capovolgi", "Mini Foto Rnd"}) {
        last.painted = -1;
        Apply(effect);
        EXPECT_EQ(last.painted, 400) << effect;
    }
}

}  // namespace
}  // namespace pixano::test
