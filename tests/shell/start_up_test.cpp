// From the start to the menus of a program without a picture, and what opening one switches on.
#include "document/enabling.h"
#include "support/program.h"

#include <QScreen>

namespace pixano::test {
namespace {

/// The entries that can be used, as `Index`.
std::vector<int> EnabledEntries(const Session& s)
{
    std::vector<int> indices;
    for (int index = 1; index <= EntryCount(); ++index)
        if (s.form1.Control(index - 1).isEnabled()) indices.push_back(index);
    return indices;
}

std::vector<int> FromTo(int first, int last)
{
    std::vector<int> indices;
    for (int index = first; index <= last; ++index)
        indices.push_back(index);
    return indices;
}

/// After start-up: "&File", "&Apri" and its separators, the three that are passed over under
/// parents that are off, "&Esci...", "&Effetti", "&Inf." and "?".
const std::vector<int> WithoutPicture{1, 2, 4, 14, 17, 22, 23, 34, 35, 36, 61, 62};

TEST_F(Program, LeavesOnlyWhatNeedsNoPictureAfterStartUp)
{
    EXPECT_EQ(EnabledEntries(session), WithoutPicture);
    EXPECT_FALSE(Enabled(entry::Salva));
}

TEST_F(Program, OpensTheEffectsMenuWithNothingUsableInItAfterStartUp)
{
    EXPECT_TRUE(Enabled(36));
    for (int index = 37; index <= 57; ++index)
        EXPECT_FALSE(Enabled(index)) << index;
}

TEST_F(Program, EnablesEveryEffectAfterOpeningButNothingToSaveOrUndo)
{
    Open("a.bmp", Drawn({"ab"}));
    // 3 and 58 to 60 are "&Salva File" and the history.
    std::vector<int> expected = FromTo(1, EntryCount());
    std::erase_if(expected, [](int index) { return index == 3 || (index >= 58 && index <= 60); });
    EXPECT_EQ(EnabledEntries(session), expected);
    EXPECT_EQ(PaletteHistory(), (History{false, false, false}));
}

TEST_F(UnstartedProgram, SwitchesOffByPositionWithTheExceptionsKept)
{
    for (int index = 1; index <= EntryCount(); ++index)
        session.form1.Control(index - 1).setEnabled(true);
    Disabil(session);
    EXPECT_EQ(EnabledEntries(session), WithoutPicture);
}

TEST_F(UnstartedProgram, SwitchesEverythingButTheHistoryOnWithAPicture)
{
    Disabil(session);
    Abilita(session);
    std::vector<int> expected = FromTo(1, EntryCount());
    std::erase_if(expected, [](int index) { return index >= 58 && index <= 60; });
    EXPECT_EQ(EnabledEntries(session), expected);
}

TEST_F(UnstartedProgram, LeavesTheHistoryAloneWhenSwitchingOn)
{
    for (int index = 1; index <= EntryCount(); ++index)
        session.form1.Control(index - 1).setEnabled(true);
    Abilita(session);
    EXPECT_EQ(EnabledEntries(session), FromTo(1, EntryCount()));
}

TEST_F(Program, PlacesTheMainWindowInTheMiddleButWellAboveIt)
{
    const QSize screen = session.form1.screen()->size();
    const QSize size = session.form1.size();
    // 3200 twips are 213 1/3 pixels.
    EXPECT_EQ(session.form1.pos().x(), qRound((screen.width() - size.width()) / 2.0));
    EXPECT_EQ(session.form1.pos().y(),
              qRound(screen.height() / 2.0 - size.height() / 2.0 - 640.0 / 3));
    EXPECT_TRUE(session.form1.isVisible());
}

TEST_F(Program, RemembersTheFolderThatItStartedIn)
{
    EXPECT_EQ(session.doc.CartellaAvvio, QDir::currentPath());
}

TEST_F(Program, ShowsNoOtherWindowBeforeAPictureIsOpened)
{
    EXPECT_FALSE(session.form2.isVisible());
    EXPECT_FALSE(session.form9.isVisible());
    EXPECT_FALSE(session.form10.isVisible());
    EXPECT_FALSE(session.form4.isVisible());
}

TEST_F(UnstartedProgram, ShowsTheMainWindowBehindTheStartUpPicture)
{
    bool behind = false;
    bool designed = false;
    Start([&](QWidget& window) {
        behind = session.form1.isVisible();
        // The menus are switched only when the picture has gone.
        designed = Enabled(entry::Salva) && Enabled(37);
        EXPECT_EQ(window.objectName(), "Form6");
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(window.windowTitle(), "");
        QTest::mouseClick(window.findChild<QWidget*>("Picture1"), Qt::LeftButton);
    });
    EXPECT_TRUE(behind);
    EXPECT_TRUE(designed);
    EXPECT_EQ(EnabledEntries(session), WithoutPicture);
}

class StartUpKey : public UnstartedProgram, public testing::WithParamInterface<Qt::Key> {};

TEST_P(StartUpKey, ClosesTheStartUpPicture)
{
    bool closed = false;
    Start([&](QWidget& window) {
        QTest::keyClick(&window, GetParam());
        closed = !window.isVisible();
        if (!closed) window.close();
    });
    EXPECT_TRUE(closed);
    EXPECT_EQ(EnabledEntries(session), WithoutPicture);
}

INSTANTIATE_TEST_SUITE_P(Keys, StartUpKey,
                         testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,
                                         Qt::Key_Escape));

TEST_F(UnstartedProgram, KeepsTheStartUpPictureAtAnyOtherKey)
{
    bool stayed = false;
    Start([&](QWidget& window) {
        QTest::keyClick(&window, Qt::Key_X);
        stayed = window.isVisible();
        window.close();
    });
    EXPECT_TRUE(stayed);
}

TEST_F(UnstartedProgram, IgnoresEveryCommandUntilTheStartUpPictureHasGone)
{
    Start([&](QWidget& window) {
        session.form1.Control(entry::Apri - 1).trigger();
        EXPECT_FALSE(session.form1.close());
        window.close();
    });
    EXPECT_TRUE(dialogs.openFolders.empty());
    EXPECT_FALSE(session.ending.has_value());
}

}  // namespace
}  // namespace pixano::test
