// What lies on disk and what is seen while an effect runs, step by step: the program as somebody
// else would find it who looked at that moment.
#include "canvas/fault.h"
#include "support/program.h"
#include "support/values.h"

#include <QProgressBar>

namespace pixano::test {
namespace {

/// What was found at one moment.
struct Found {
    std::string pixels;  ///< the bytes of "elab.ser"
    bool pixelsThere = false;
    bool snapshotThere = false;
    QString title;  ///< of the progress window
    QString caption;
    int previewColour = 0;  ///< of its upper left pixel
    Qt::CursorShape pointer = Qt::ArrowCursor;
};

/// Looks around when the progress window comes, at the first row, and when the window goes.
class EffectSteps : public QObject, public Program {
  protected:
    EffectSteps()
    {
        session.form4.installEventFilter(this);
        QObject::connect(&session.form4, &QWidget::windowTitleChanged, this,
                         [this](const QString& title) {
                             if (title.contains('%') && atFirstRow.title.isEmpty())
                                 atFirstRow = Look();
                         });
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            atShow = Look();
            atFirstRow = {};
        }
        if (event->type() == QEvent::Hide) atHide = Look();
        return false;
    }
    Found Look()
    {
        const Surface& preview = session.form9.Image1().Picture();
        return {Bytes("elab.ser"),
                Exists(Path("elab.ser")),
                Exists(Data("temp.bml")),
                session.form4.windowTitle(),
                CanvasCaption(),
                preview.Point(0, 0),
                session.form10.cursor().shape()};
    }

    Found atShow;
    Found atFirstRow;
    Found atHide;
};

struct Captured {
    const char* effect;
    Values picture;
    std::string pixels;
};

TEST_F(EffectSteps, WriteTheCanvasValueByValueIntoThePixelFile)
{
    const Values picture{{16777215, 0, 255}, {65280, 16711680, 1}};
    // Row by row, each with one value outside at its end, and a row outside at the end of all.
    const char* const whole = "16777215\r\n0\r\n255\r\n-1\r\n"
                              "65280\r\n16711680\r\n1\r\n-1\r\n"
                              "-1\r\n-1\r\n-1\r\n-1\r\n";
    const Values square{{0, 1, 2, 3}, {10, 11, 12, 13}, {20, 21, 22, 23}, {30, 31, 32, 33}};
    for (const Captured& captured : {Captured{"Capovolgi", picture, whole},
                                     {"Specchio", picture, whole},
                                     {"Capovolgi a Specchio", picture, whole},
                                     // Half of the columns and rows, from the second one on.
                                     {"Multifoto", square, "11\r\n13\r\n31\r\n33\r\n"},
                                     {"Capovolgi", {{7}}, "7\r\n-1\r\n-1\r\n-1\r\n"}}) {
        SCOPED_TRACE(captured.effect);
        dialogs.answers.assign(session.doc.Modificato == 1 ? 1 : 0, false);
        Open(QString(captured.effect) + QString::number(captured.picture.size()) + ".bmp",
             Painted(captured.picture));
        Apply(captured.effect);
        EXPECT_EQ(atShow.pixels, captured.pixels);
        EXPECT_EQ(atFirstRow.pixels, captured.pixels);
    }
}

TEST_F(EffectSteps, FollowEachOther)
{
    Open("a.bmp", Painted({{1, 2, 3}, {4, 5, 6}}));
    Apply("Specchio");
    // Snapshot and capture come before the window, which has the effect's name from the beginning.
    EXPECT_TRUE(atShow.snapshotThere);
    EXPECT_TRUE(atShow.pixelsThere);
    EXPECT_EQ(atShow.title, "Elab. Specchio");
    EXPECT_EQ(atShow.pointer, Qt::WaitCursor);
    EXPECT_EQ(atFirstRow.title, "Elab. Specchio  (0%)");
    EXPECT_EQ(atFirstRow.caption, "a.bmp   3x2");
    // The pixel file goes before the window does; preview and caption follow.
    EXPECT_FALSE(atHide.pixelsThere);
    EXPECT_EQ(atHide.title, "Elab. Specchio  (100%)");
    EXPECT_EQ(atHide.caption, "a.bmp   3x2");
    EXPECT_EQ(atHide.previewColour, 1);
    EXPECT_EQ(atHide.pointer, Qt::WaitCursor);
    const Found last = Look();
    EXPECT_EQ(last.caption, "Specchio   3x2");
    EXPECT_EQ(last.previewColour, 3);
    EXPECT_EQ(last.pointer, Qt::ArrowCursor);
    EXPECT_EQ(last.title, "");
}

TEST_F(EffectSteps, BeginWithAnEmptyBarAfterAnErrorThatCameBeforeTheWindow)
{
    Open("a.bmp", Painted({{1, 2, 3}, {4, 5, 6}}));
    const Effect failing{.name = "Guasta",
                         .run =
                             [](Work& w) {
                                 w.Avanzamento(2);
                                 throw Fault(FaultKind::InputPastEnd);
                             },
                         .family = Family::Geometry};
    RunInFrame(failing);
    EXPECT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(session.form4.Bar(), 0);
    EXPECT_EQ(session.form4.windowTitle(), "");
    Apply("Specchio");
    EXPECT_EQ(atShow.title, "Elab. Specchio");
    EXPECT_EQ(atFirstRow.title, "Elab. Specchio  (0%)");
}

}  // namespace
}  // namespace pixano::test
