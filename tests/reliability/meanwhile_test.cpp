// What the user does while an effect runs: no second command starts inside it, no window is lost,
// and the program stays whole.
#include "reliability/busy.h"
#include "reliability/checksum.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPushButton>

#include <functional>
#include <random>

#include <unistd.h>

namespace pixano::test {
namespace {

/// Does something when the progress window appears and whenever it tells how far the effect is.
class Meanwhile : public QObject {
  public:
    Meanwhile(Session& session, std::function<void()> then)
        : session_(session), then_(std::move(then))
    {
        session.form4.installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool telling =
            event->type() == QEvent::Show || event->type() == QEvent::WindowTitleChange;
        if (telling && session_.busy && !inside_) {
            inside_ = true;
            then_();
            ++times;
            inside_ = false;
        }
        return QObject::eventFilter(watched, event);
    }

    int times = 0;

  private:
    Session& session_;
    std::function<void()> then_;
    bool inside_ = false;
};

void DropOnto(QWidget& window, const QString& path)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
}

struct Act {
    const char* name;
    std::function<void(Session&)> act;
};

std::vector<Act> Acts()
{
    std::vector<Act> acts{
        {"close the main window", [](Session& s) { s.form1.close(); }},
        {"close the canvas", [](Session& s) { s.form2.close(); }},
        {"close the preview", [](Session& s) { s.form9.close(); }},
        {"close the palette", [](Session& s) { s.form10.close(); }},
        {"close the progress window", [](Session& s) { s.form4.close(); }},
        {"drop a picture", [](Session& s) { DropOnto(s.form1, Folders::Path("b.bmp")); }},
        {"drop onto the canvas",
         [](Session& s) { DropOnto(s.form2.Picture1(), Folders::Path("b.bmp")); }},
        {"paste", [](Session& s) { emit s.form1.Pasted(); }},
        {"Ctrl+O", [](Session& s) { QTest::keyClick(&s.form1, Qt::Key_O, Qt::ControlModifier); }},
        {"Ctrl+Z", [](Session& s) { QTest::keyClick(&s.form1, Qt::Key_Z, Qt::ControlModifier); }},
    };
    for (int entry = 1; entry <= EntryCount(); ++entry)
        acts.push_back(
            {"a menu entry", [entry](Session& s) { s.form1.Control(entry - 1).trigger(); }});
    for (const PaletteButton& button : PaletteButtons())
        acts.push_back({button.name, [name = button.name](Session& s) {
                            s.form10.findChild<QPushButton*>(name)->click();
                        }});
    return acts;
}

/// A dialog that must not come up would wait for ever: the signal ends the tests.
class WhileAnEffectRuns : public testing::Test {
  protected:
    void SetUp() override { alarm(60); }
    void TearDown() override { alarm(0); }
};

TEST_F(WhileAnEffectRuns, NoOtherCommandStarts)
{
    const Folders folders;
    Surface expected;
    {
        Busy usual;
        usual.desk.Apply("Specchio");
        expected = usual.desk.Canvas();
    }
    for (const Act& act : Acts()) {
        SCOPED_TRACE(act.name);
        Busy busy;
        Session& session = busy.desk.session;
        QApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
        {
            const Meanwhile meanwhile(session, [&] { act.act(session); });
            busy.desk.Apply("Specchio");
            EXPECT_GT(meanwhile.times, 0);
        }
        EXPECT_EQ(busy.desk.Canvas(), expected);
        EXPECT_EQ(session.doc.NumEffetti, 3);
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_FALSE(session.ending);
        EXPECT_TRUE(session.form1.isVisible() && session.form2.isVisible() &&
                    session.form9.isVisible());
        EXPECT_TRUE(busy.desk.dialogs.asked.empty());
        EXPECT_EQ(busy.desk.dialogs.openFolders.size(), 1U) << "only the picture's own opening";
        EXPECT_TRUE(busy.desk.dialogs.told.empty());
    }
}

/// What a key does: it waits in the queue for as long as a command runs.
void WhenNothingRuns(Session& session, const std::function<void()>& act)
{
    QTimer::singleShot(0, &session.form1, [&session, act] {
        if (session.busy)
            WhenNothingRuns(session, act);
        else
            act();
    });
}

/// Keys and clicks that wait until the effect has ended are commands like any others then.
TEST_F(WhileAnEffectRuns, WhatIsQueuedComesAfterwards)
{
    const Folders folders;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        Busy busy;
        Session& session = busy.desk.session;
        std::mt19937 random(seed);
        int queued = 0;
        const int before = session.doc.NumEffetti;
        {
            const Meanwhile meanwhile(session, [&] {
                if (random() % 2 != 0 || queued == 5) return;
                ++queued;
                WhenNothingRuns(session, [&] { session.form1.Control(31).trigger(); });
            });
            busy.desk.Apply("Specchio");
            EXPECT_EQ(session.doc.NumEffetti, before + 1) << "one at a time";
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return session.doc.NumEffetti == before + 1 + queued; }));
        EXPECT_TRUE(busy.desk.dialogs.told.empty());
    }
}

}  // namespace
}  // namespace pixano::test
