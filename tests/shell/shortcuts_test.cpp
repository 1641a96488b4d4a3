// The keys that stand for menu entries: only while the entry can be used.
#include "support/program.h"

namespace pixano::test {
namespace {

class Shortcuts : public Program {
  protected:
    /// Goes to the window, once an opening lets it have the focus.
    static void GoTo(QWidget& window)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !FocusIsKeptFrom(window); }));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Presses Ctrl and the key while `window` is in front.
    static void Press(QWidget& window, Qt::Key key)
    {
        GoTo(window);
        QTest::keyClick(&window, key, Qt::ControlModifier);
    }
    void Press(Qt::Key key) { Press(session.form1, key); }
};

TEST_F(Shortcuts, OpenWithO)
{
    dialogs.openNames.push_back(Made("a.bmp", Drawn({"abc"})));
    Press(Qt::Key_O);
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
}

TEST_F(Shortcuts, DoNothingWhileTheirEntriesAreOff)
{
    Open("a.bmp", Drawn({"abc"}));
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_Z, Qt::Key_Y, Qt::Key_0})
        Press(key);
    EXPECT_TRUE(dialogs.saveFolders.empty());
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_FALSE(Enabled(entry::Orig));
    EXPECT_EQ(session.doc.InOriginale, 0);
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Shortcuts, GoBackForwardAndToTheOriginal)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    Apply("Capovolgi");
    Press(Qt::Key_Z);
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    Press(Qt::Key_Y);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    Press(Qt::Key_0);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
}

TEST_F(Shortcuts, SaveWithS)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.saveNames.push_back(Path("s.bmp"));
    Press(Qt::Key_S);
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
}

TEST_F(Shortcuts, AllWorkInTheOtherWindowsToo)
{
    for (QWidget* const window :
         std::initializer_list<QWidget*>{&session.form2, &session.form9, &session.form10}) {
        SCOPED_TRACE(window->objectName().toStdString());
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        Apply("Capovolgi");
        Press(*window, Qt::Key_Z);
        EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
        Press(*window, Qt::Key_Y);
        EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
        dialogs.saveNames.push_back(Path("s.bmp"));
        dialogs.answers.assign(dialogs.saveFolders.empty() ? 0 : 1, true);
        Press(*window, Qt::Key_S);
        EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"~ab"}));
        EXPECT_EQ(session.doc.Modificato, 0);
        Press(*window, Qt::Key_0);
        EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
        QFile::remove(Path("s.bmp"));
        dialogs.openNames.push_back(Made("b.bmp", Drawn({"bb"})));
        Press(*window, Qt::Key_O);
        EXPECT_EQ(CanvasLetters(), (Letters{"bb"}));
    }
}

TEST_F(Shortcuts, DoOnceWhatTheyDoHoweverLongTheyAreHeld)
{
    const auto hold = [](QWidget& window, Qt::Key key) {
        GoTo(window);
        for (const bool repeats : {false, true, true})
            QTest::simulateEvent(window.windowHandle(), true, key, Qt::ControlModifier, QString(),
                                 repeats);
        QTest::simulateEvent(window.windowHandle(), false, key, Qt::ControlModifier, QString(),
                             false);
    };
    Open("a.bmp", Drawn({"abc"}));
    int pasted = 0;
    std::size_t opened = 1;
    QObject::connect(&session.form1, &Form1::Pasted, [&pasted] { ++pasted; });
    hold(session.form1, Qt::Key_V);
    EXPECT_EQ(pasted, 1);
    hold(session.form9, Qt::Key_V);
    EXPECT_EQ(pasted, 2);
    dialogs.openNames.assign(3, std::nullopt);
    for (QWidget* const window : std::initializer_list<QWidget*>{&session.form1, &session.form9}) {
        hold(*window, Qt::Key_O);
        EXPECT_EQ(dialogs.openFolders.size(), ++opened);
    }
}

TEST_F(Shortcuts, ChangeNoCaption)
{
    EXPECT_EQ(session.form1.Control(entry::Apri - 1).text(), "&Apri");
    EXPECT_TRUE(session.form1.Control(entry::Apri - 1).shortcut().isEmpty());
}

}  // namespace
}  // namespace pixano::test
