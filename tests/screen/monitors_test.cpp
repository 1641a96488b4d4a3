// A desk with two monitors: every window counts its place from the one that holds the main window.
#include "panels/form11.h"
#include "screen/desktop.h"
#include "shell/spy_effect.h"
#include "support/modal_steps.h"
#include "windows/screen_dialogs.h"

#include <QDir>
#include <QMessageBox>

namespace pixano::test {
namespace {

class TwoMonitors : public Desktop {
  protected:
    TwoMonitors() : right_(QApplication::screens().back()->geometry())
    {
        // The program starts on the left one.
        EXPECT_EQ(QApplication::screens().size(), 2);
        EXPECT_GT(right_.left(), 0);
        EXPECT_GT(right_.top(), 0);
        Do(QString("windowmove --sync %1 %2 200").arg(Id(session.form1)).arg(right_.left() + 300));
        EXPECT_TRUE(ComesToHold([this] { return right_.contains(session.form1.frameGeometry()); }));
    }

    void ExpectOnTheRight(const QWidget& window) const
    {
        EXPECT_TRUE(right_.contains(window.frameGeometry()))
            << window.objectName().toStdString() << " begins at " << window.x() << ","
            << window.y();
    }
    /// In the middle of the right monitor, up to what rounding takes away.
    void ExpectInTheMiddle(const QWidget& window) const
    {
        const QPoint apart = window.pos() + QPoint(window.width(), window.height()) / 2 -
                             (right_.topLeft() + QPoint(right_.width(), right_.height()) / 2);
        EXPECT_LE(apart.manhattanLength(), 2) << window.objectName().toStdString();
    }

    const QRect right_;
};

TEST_F(TwoMonitors, HoldCanvasPreviewAndPaletteBesideTheMainWindow)
{
    OpenSized(300, 200);
    EXPECT_EQ(session.form2.pos(), right_.topLeft());
    EXPECT_EQ(session.form10.pos(), right_.topLeft() + QPoint(right_.width() - 217, 0));
    ExpectOnTheRight(session.form9);
    EXPECT_LE(session.form9.frameGeometry().right(), session.form10.x());
    Form11 slider("Vetro", session.form10);
    slider.show();
    EXPECT_EQ(slider.pos(), session.form10.pos() + QPoint(9, 40));
}

TEST_F(TwoMonitors, HoldLargePicturesAndTheGrowingPreviewOnTheRight)
{
    OpenSized(3000, 3000);
    ExpectOnTheRight(session.form2);
    ExpectOnTheRight(session.form9);
    // Their frames are known by now.
    OpenSized(3000, 2900);
    ExpectOnTheRight(session.form2);
    ExpectOnTheRight(session.form9);
    OpenSized(300, 200);
    for (int i = 0; i < 9; ++i)
        Button("Command1").click();
    EXPECT_TRUE(Stays([this] { return right_.contains(session.form9.frameGeometry()); }));
}

TEST_F(TwoMonitors, KeepThePreviewOnTheOtherOneWhereTheUserHasMovedItThere)
{
    OpenSized(300, 200);
    const QRect left = QApplication::screens().front()->geometry();
    const auto there = [&] { return left.contains(session.form9.frameGeometry()); };
    EXPECT_TRUE(ComesToHold([&] {
        session.form9.move(left.center());
        return Stays(there);
    }));
    for (int i = 0; i < 3; ++i) {
        Button("Command1").click();
        EXPECT_TRUE(StaysOnceAnswered(there)) << i;
    }
}

TEST_F(TwoMonitors, HoldTheWindowsThatInformInTheirMiddle)
{
    for (const int index : {entry::Inf, entry::Inter}) {
        QTimer::singleShot(0, [this] {
            auto* const modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(modal, nullptr);
            ExpectInTheMiddle(*modal);
            modal->reject();
        });
        ClickEntry(index);
    }
}

TEST_F(TwoMonitors, HoldTheProgressWindowWhereTheMainWindowIs)
{
    OpenSized(300, 200);
    bool seen = false;
    SpyAction() = [&](Work& w) {
        w.ShowProgress();
        ExpectOnTheRight(session.form4);
        seen = true;
    };
    RunInFrame(Spy());
    SpyAction() = nullptr;
    EXPECT_TRUE(seen);
}

// There may be nothing above, or another monitor.
TEST_F(TwoMonitors, HoldTheTitleOfWhatAsks)
{
    QMessageBox box(&session.form1);
    box.setText("Salvare?");
    box.move(right_.topLeft() + QPoint(100, -50));
    box.open();
    EXPECT_TRUE(ComesToHold([&] { return !box.windowHandle()->frameMargins().isNull(); }));
    EXPECT_TRUE(Stays([&] { return box.y() == right_.top(); })) << box.y();
}

TEST_F(TwoMonitors, HoldWhatAsksAndTellsWhereTheMainWindowIs)
{
    ScreenDialogs real;
    for (const auto& question : Questions(real)) {
        Activate(session.form1);
        const ModalSteps steps({[this](QDialog& dialog) {
            EXPECT_TRUE(ComesToHold([&] { return IsActive(dialog); }));
            EXPECT_TRUE(Stays([&] { return right_.contains(dialog.frameGeometry()); }))
                << dialog.windowTitle().toStdString() << " begins at " << dialog.x() << ","
                << dialog.y() << " with " << dialog.frameGeometry().height() << " rows";
        }});
        question();
    }
}

}  // namespace
}  // namespace pixano::test
