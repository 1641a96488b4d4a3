// What is told and what stays when memory is too short for a step.
#include "document/recovery.h"
#include "document/recovery_note.h"
#include "reliability/preload/failing_calls.h"
#include "reliability/scenes.h"
#include "shell/run.h"
#include "windows/file_names.h"

#include <climits>

namespace pixano::test {
namespace {

const QString Short = "la memoria non basta";

class ShortMemory : public testing::Test {
  protected:
    ~ShortMemory() override { EndFailing(); }

    /// There is no more memory until the step is done.
    static void WithoutMemory(const std::function<void()>& step)
    {
        BeginToFail({.first = 1, .last = LONG_MAX, .only = Allocates});
        step();
        EndFailing();
    }
    QStringList Told()
    {
        QStringList told;
        for (const ShownBox& box : std::exchange(desk_.dialogs.told, {}))
            told += box.text;
        return told;
    }
    /// "Ripristina" finds no file; only memory can keep what it goes forward to.
    void HinderRedo()
    {
        QFile::remove(folders_.Data("temp2.bml"));
        QDir().mkpath(folders_.Data("temp2.bml"));
    }
    /// Neither file nor memory keeps it.
    void ExpectNoWayForward()
    {
        EXPECT_EQ(Told().join(' '), "Impossibile salvare «" + folders_.Data("temp2.bml") +
                                        "»: è una cartella. Nemmeno la memoria basta per "
                                        "conservare l'immagine: «Ripristina» non può riportarla.");
        EXPECT_FALSE(desk_.Enabled(entry::Redo));
        EXPECT_FALSE(desk_.Button("SSCommand17").isEnabled());
    }

    Folders folders_;
    Desk desk_;
};

TEST_F(ShortMemory, LeavesAPictureWholeThatWasToBecomeALargerOne)
{
    const Surface small = Varied(40, 30);
    const Surface large = Varied(80, 60);
    Surface picture = small;
    WithoutMemory([&] { EXPECT_TRUE(ErrorOf([&] { picture = large; })); });
    EXPECT_EQ(picture, small);
}

// One call after another fails: to read the picture, and to show it.
TEST_F(ShortMemory, NamesThePictureThatIsNotOpenedAndOpensNothingHalf)
{
    // Larger than what is open, whose memory would do for it.
    const QString name = Folders::Path("grande.bmp");
    WriteWorkingBitmap(Varied(80, 60), FileBytes(name));
    for (const Scene scene : {Scene::Started, Scene::Changed}) {
        int unopened = 0;
        bool reached = true;
        for (long call = 1; reached; ++call) {
            SCOPED_TRACE("call " + std::to_string(call));
            Desk desk;
            Reach(scene, desk);
            const QString before = desk.session.doc.FileAperto;
            desk.dialogs.answers = {false};
            BeginToFail({.first = call, .last = call, .only = Allocates});
            desk.Open(name);
            reached = CountedCalls() >= call;
            EndFailing();
            if (desk.dialogs.told.empty()) continue;
            ++unopened;
            ASSERT_EQ(desk.dialogs.told.size(), 1U);
            EXPECT_EQ(desk.dialogs.told[0].text,
                      "Impossibile leggere «" + name + "»: " + Short + '.');
            EXPECT_EQ(desk.session.doc.FileAperto, before);
            EXPECT_EQ(desk.session.doc.open, scene == Scene::Changed);
            EXPECT_EQ(desk.session.doc.Modificato, scene == Scene::Changed ? 1 : 0);
            desk.dialogs.told.clear();
            desk.dialogs.answers = {false};
            desk.Open(name);
            EXPECT_TRUE(desk.dialogs.told.empty());
            EXPECT_EQ(desk.session.doc.FileAperto, name);
        }
        EXPECT_GE(unopened, 2);
    }
}

TEST_F(ShortMemory, NamesTheOpenedPictureThatIsNotReadAgain)
{
    Reach(Scene::Changed, desk_);
    WithoutMemory([&] { desk_.ClickEntry(entry::Orig); });
    EXPECT_TRUE(Told().join(' ').contains("Impossibile leggere «" + Folders::Path("a.bmp") +
                                          "»: " + Short + '.'));
    EXPECT_EQ(desk_.session.doc.Modificato, 1);
}

TEST_F(ShortMemory, LeavesTheWayForwardOpen)
{
    Reach(Scene::Changed, desk_);
    const Surface changed = desk_.Canvas();
    desk_.ClickEntry(entry::Orig);
    const Surface opened = desk_.Canvas();
    WithoutMemory([&] { desk_.ClickEntry(entry::Redo); });
    EXPECT_EQ(Told(), QStringList{"Errore durante il comando «Ripristina»:\nImpossibile leggere «" +
                                  folders_.Data("temp2.bml") + "»: " + Short + '.'});
    EXPECT_EQ(desk_.Canvas(), opened);
    EXPECT_EQ(desk_.session.doc.Modificato, 0);
    EXPECT_FALSE(desk_.Enabled(entry::Orig));
    EXPECT_TRUE(desk_.Button("SSCommand17").isEnabled());
    desk_.ClickEntry(entry::Redo);
    EXPECT_EQ(desk_.Canvas(), changed);
    EXPECT_EQ(desk_.session.doc.Modificato, 1);
}

TEST_F(ShortMemory, TellsThatAStepBackHasNoWayForward)
{
    Reach(Scene::Changed, desk_);
    HinderRedo();
    WithoutMemory([&] { desk_.ClickEntry(entry::Undo); });
    ExpectNoWayForward();
}

TEST_F(ShortMemory, TellsThatTheReturnToTheOpenedPictureHasNoWayForward)
{
    Reach(Scene::Changed, desk_);
    desk_.ClickEntry(entry::Undo);
    desk_.Apply("Specchio");
    HinderRedo();
    // The picture is read again, and the one before it is not kept.
    WithoutMemory([&] { desk_.ClickEntry(entry::Orig); });
    EXPECT_TRUE(Told().join(' ').contains("«Ripristina» non può riportarla."));
    EXPECT_FALSE(desk_.Enabled(entry::Redo));
}

TEST_F(ShortMemory, OpensThoughThePathUsedLastCannotBeRead)
{
    Reach(Scene::Opened, desk_);
    BeginToFail({.first = 1, .last = 1, .only = Allocates});
    desk_.Open(Folders::Path("b.bmp"));
    EndFailing();
    EXPECT_EQ(Told(), QStringList());
    EXPECT_EQ(desk_.session.doc.FileAperto, Folders::Path("b.bmp"));
}

TEST_F(ShortMemory, KeepsTheNoteThatItCannotRead)
{
    {
        Desk killed;
        Reach(Scene::Changed, killed);
    }
    const std::string note = BytesOf(FileBytes(RecoveryNotePath()));
    RunCommand(desk_.session, "Avvio", Fatal::All,
               [&] { WithoutMemory([&] { OfferRecovery(desk_.session); }); });
    const QString told = Told().join(' ');
    EXPECT_TRUE(told.contains("Il file «" + RecoveryNotePath() + "» non si può leggere."));
    const QStringList kept = QDir(folders_.Data("")).entryList({"recupero-*.txt"});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(BytesOf(FileBytes(folders_.Data(kept[0]))), note);
    EXPECT_TRUE(told.contains(folders_.Data(kept[0])));
}

}  // namespace
}  // namespace pixano::test
