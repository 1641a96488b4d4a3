// The picture as it is really seen, after every command, and which window comes to the front or has
// the keyboard then.
#include "canvas/fault.h"
#include "panels/form6.h"
#include "screen/desktop.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QThread>

namespace pixano::test {
namespace {

class SeenCanvas : public Desktop {
  protected:
    SeenCanvas() { OpenSized(200, 150); }
    ~SeenCanvas() override { QApplication::clipboard()->clear(); }

    /// Whether the display shows exactly these pixels, inside the border of two.
    bool Shows(const Surface& picture)
    {
        PictureBox& box = session.form2.Picture1();
        const QPoint corner =
            box.mapToGlobal(QPoint(2, 2)) - session.form2.screen()->geometry().topLeft();
        const QImage seen =
            session.form2.screen()
                ->grabWindow(0, corner.x(), corner.y(), picture.Width(), picture.Height())
                .toImage();
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                const QRgb rgb = seen.pixel(x, y);
                if (qRed(rgb) + 256 * qGreen(rgb) + 65536 * qBlue(rgb) != picture.Point(x, y))
                    return false;
            }
        return true;
    }
    void ExpectSeen(const char* after)
    {
        EXPECT_TRUE(ComesToHold([this] { return Shows(Canvas()); })) << after;
    }
};

TEST_F(SeenCanvas, FollowsEveryCommand)
{
    ExpectSeen("opening");
    // The last but one of the effects leaves the caption as it is.
    for (const int index :
         {31, 32, 33, 37, 46, entry::Undo, entry::Redo, entry::Orig, entry::Redo}) {
        const Surface before = Canvas();
        ClickEntry(index);
        EXPECT_FALSE(Canvas() == before) << index;
        ExpectSeen(Entry(index).objectName().toUtf8().constData());
    }
    Button("SSCommand26").click();
    ExpectSeen("a button of the palette");
    dialogs.answers = {false};
    QImage copied(120, 90, QImage::Format_RGB32);
    copied.fill(Qt::red);
    QApplication::clipboard()->setImage(copied);
    emit session.form1.Pasted();
    EXPECT_EQ(Canvas().Width(), 120);
    ExpectSeen("a smaller picture");
    Open("grande.bmp", Varied(300, 220));
    ExpectSeen("a larger picture");
}

TEST_F(SeenCanvas, ShowsWhatAnErrorSpeaksOfBeforeItIsTold)
{
    const Effect failing{.name = "Guasta",
                         .run =
                             [](Work& w) {
                                 for (int y = 0; y < 40; ++y)
                                     w.Picture1.PSet(y, y, 0xFF);
                                 throw Fault(FaultKind::InputPastEnd);
                             },
                         .family = Family::Geometry};
    ExpectSeen("opening");
    bool seen = false;
    // No events are handled meanwhile; a compositor, though, may take its time.
    dialogs.meanwhile = [&] {
        for (QDeadlineTimer late(1000); !seen && !late.hasExpired(); QThread::msleep(10))
            seen = Shows(Canvas());
    };
    RunInFrame(failing);
    EXPECT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(seen);
}

TEST_F(SeenCanvas, ComesToTheFrontAtAPressOnThePicture)
{
    // By the program itself: not every window manager raises what is pressed.
    Do("windowmove " + Id(session.form9) + " 100 60");
    Activate(session.form9);
    ASSERT_TRUE(ComesToHold([this] { return IsAbove(session.form9, session.form2); }));
    QTest::mouseClick(&session.form2.Picture1(), Qt::LeftButton);
    EXPECT_TRUE(Stays([this] { return IsAbove(session.form2, session.form9); }));
    EXPECT_TRUE(ComesToHold([this] { return IsActive(session.form2); }));
}

TEST_F(SeenCanvas, TakesWhatIsPastedInWhicheverWindowTheKeyboardIs)
{
    int width = 60;
    for (QWidget* const window :
         {static_cast<QWidget*>(&session.form1), static_cast<QWidget*>(&session.form2),
          static_cast<QWidget*>(&session.form9), static_cast<QWidget*>(&session.form10)}) {
        QImage copied(++width, 40, QImage::Format_RGB32);
        copied.fill(Qt::blue);
        QApplication::clipboard()->setImage(copied);
        Activate(*window);
        Do("key ctrl+v");
        EXPECT_TRUE(ComesToHold([&] { return Canvas().Width() == width; }))
            << window->objectName().toStdString();
        WaitForWindows();
    }
}

TEST_F(SeenCanvas, BringsAHiddenPreviewBackWithTheNextEffect)
{
    session.form9.hide();
    ASSERT_TRUE(ComesToHold([this] { return !session.form9.windowHandle()->isExposed(); }));
    Apply("Specchio");
    EXPECT_TRUE(Stays([this] { return session.form9.windowHandle()->isExposed(); }));
}

TEST_F(SeenCanvas, LeavesTheKeyboardToThePaletteAfterAnEffect)
{
    Activate(session.form1);
    ClickEntry(31);
    EXPECT_TRUE(Stays([this] { return IsActive(session.form10); }));
    EXPECT_TRUE(IsAbove(session.form10, session.form9));
}

TEST_F(SeenCanvas, LosesNoKeyboardToTheProgressWindow)
{
    for (QWidget* const window :
         {static_cast<QWidget*>(&session.form1), static_cast<QWidget*>(&session.form10)}) {
        Activate(*window);
        session.form4.Show();
        EXPECT_TRUE(session.form4.windowHandle()->isExposed());
        EXPECT_TRUE(Stays([&] { return IsActive(*window); })) << window->objectName().toStdString();
        session.form4.Unload();
    }
}

TEST_F(SeenCanvas, IsUncoveredWhenTheStartUpPictureIsClickedAway)
{
    Form6 opening;
    opening.show();
    Activate(opening);
    const QPoint middle = opening.frameGeometry().center();
    Do(QString("mousemove %1 %2 mousedown 1").arg(middle.x()).arg(middle.y()));
    // A press is no click yet.
    EXPECT_TRUE(Stays([&] { return opening.isVisible(); }));
    Do("mouseup 1");
    EXPECT_TRUE(ComesToHold([&] { return !opening.isVisible(); }));
    EXPECT_EQ(opening.result(), QDialog::Accepted);
}

}  // namespace
}  // namespace pixano::test
