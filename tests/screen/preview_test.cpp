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

TEST_F(SeenPreview, HasLinesOfOneThicknessAtEveryFactor)
{
    // A black line in every tenth column; stretched to 203 columns each keeps its share of grey.
    Surface lines(200, 20);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 200; ++x)
            lines.PSet(x, y, x % 10 == 5 ? 0 : White);
    Open("righe.bmp", lines);
    WaitForWindows();
    Apply("Specchio");
    ASSERT_EQ(Preview().Image1().width(), 203);
    const QImage image = Preview().Image1().grab().toImage();
    int darkest = 0;
    int lightest = 255;
    for (int x = 0; x < image.width(); ++x) {
        const int grey = qRed(image.pixel(x, 10));
        const bool line = grey < 250 && (x == 0 || qRed(image.pixel(x - 1, 10)) >= 250);
        if (!line) continue;
        int ink = 0;
        for (int i = x; i < image.width() && qRed(image.pixel(i, 10)) < 250; ++i)
            ink += 255 - qRed(image.pixel(i, 10));
        darkest = std::max(darkest, ink);
        lightest = std::min(lightest, ink);
    }
    // One pixel's worth of black, a little more at most; twice as thick would be 510.
    EXPECT_LE(darkest, 255 + 40);
    EXPECT_GE(lightest, 255 - 40);
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
