// The whole run of the program, from its options to its end: which picture it opens, in which
// folder it works, which strengths it takes there.
#include "document/recovery_note.h"
#include "shell/program.h"
#include "support/program.h"
#include "windows/file_names.h"

#include <QStandardPaths>

namespace pixano::test {
namespace {

class Starting : public SessionInFolders {
  protected:
    Starting()
    {
        // Beside the program lie the strengths that it comes with.
        QDir(Root()).mkdir("program");
        session.programFolder = Root() + "/program";
        Write(Beside("valori.tip"), "1000\r\n2000\r\n3000\r\n4000\r\n5000\r\n");
    }

    QString Beside(const QString& name) const { return Root() + "/program/" + name; }

    /// Runs the program with these arguments to its end; `then` is done once it waits for the user.
    int RunWith(const QStringList& arguments, const std::function<void()>& then = Nothing)
    {
        OnceStartUpPictureIsUp([this, then](QWidget& window) {
            ClickAway(window);
            OnceIdle([this, then] {
                then();
                session.form1.close();
            });
        });
        return RunAsOnlyInstance(session, OptionsFrom(QStringList{"pixano"} + arguments).value());
    }
    /// Leaves the folders as a run does that is killed when "abc" has become "cba".
    void KillWithUnsavedWork() const
    {
        StartedDesk killed;
        killed.Open(Made("a.bmp", Drawn({"abc"})));
        killed.Apply("Specchio");
    }

  private:
    static void Nothing() {}
    void OnceIdle(const std::function<void()>& then)
    {
        QTimer::singleShot(0, [this, then] { session.busy ? OnceIdle(then) : then(); });
    }
};

TEST_F(Starting, OpensNothingUnlessAPictureIsNamed)
{
    bool opened = true;
    EXPECT_EQ(RunWith({}, [&] { opened = session.doc.open; }), 0);
    EXPECT_FALSE(opened);
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_TRUE(dialogs.openFolders.empty());
}

TEST_F(Starting, OpensThePictureThatIsNamed)
{
    Made("a.bmp", Drawn({"abc"}));
    Letters seen;
    EXPECT_EQ(RunWith({"a.bmp"},
                      [&] {
                          seen = CanvasLetters();
                          EXPECT_EQ(session.doc.FileAperto, Path("a.bmp"));
                          EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
                          EXPECT_TRUE(session.form2.isVisible());
                      }),
              0);
    EXPECT_EQ(seen, (Letters{"abc"}));
}

TEST_F(Starting, OpensThePictureThatAFileUrlNames)
{
    const QString path = Made("due parole 50%.bmp", Drawn({"abc"}));
    QString opened;
    EXPECT_EQ(
        RunWith({QUrl::fromLocalFile(path).toEncoded()}, [&] { opened = session.doc.FileAperto; }),
        0);
    EXPECT_EQ(opened, path);
}

TEST_F(Starting, OpensAPictureWhoseNameAndFolderAreNoUtf8)
{
    const std::string folder = FileBytes(CurrentFolder()) + "/caff\xE8";
    std::filesystem::create_directory(folder);
    GoToFolder(FileName(folder));
    SaveBitmap(Drawn({"abc"}), folder + "/m\xE0re.bmp");
    Letters seen;
    EXPECT_EQ(RunWith({FileName("m\xE0re.bmp")}, [&] { seen = CanvasLetters(); }), 0);
    EXPECT_EQ(seen, (Letters{"abc"}));
    EXPECT_EQ(BytesOf(folder + "/percors.dat"), '"' + folder + "/m\xE0re.bmp\"\r\n");
    std::filesystem::remove_all(folder);
}

TEST_F(Starting, TellsThatThePictureDoesNotExistAndStays)
{
    bool stayed = false;
    EXPECT_EQ(RunWith({"manca.bmp"}, [&] { stayed = !session.ending && !session.doc.open; }), 0);
    EXPECT_TRUE(stayed);
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                      "File " + Path("manca.bmp") + " non trovato!"}}));
}

TEST_F(Starting, WorksInTheFolderThatTheUserIsIn)
{
    const QString here = QDir::currentPath();
    RunWith({Made("a.bmp", Drawn({"abc"}))}, [&] {
        EXPECT_EQ(QDir::currentPath(), here);
        EXPECT_EQ(session.doc.firstFolder, here);
        EXPECT_EQ(session.programFolder, Root() + "/program");
    });
    EXPECT_TRUE(Exists("percors.dat"));
    EXPECT_FALSE(Exists(Data("valori.tip")));
}

TEST_F(Starting, RemembersNoPathWhereThereIsNoStartUpFolder)
{
    const QString picture = Made("a.bmp", Drawn({"abc"}));
    ASSERT_FALSE(Exists("/percors.dat"));
    QDir().mkdir("sparita");
    QDir::setCurrent("sparita");
    QDir().rmdir(QDir::currentPath());
    bool opened = false;
    EXPECT_EQ(RunWith({picture},
                      [&] {
                          opened = session.doc.open;
                          EXPECT_EQ(session.doc.CartellaAvvio, "");
                      }),
              0);
    EXPECT_TRUE(opened);
    EXPECT_FALSE(Exists("/percors.dat"));
    QFile::remove("/percors.dat");
}

TEST_F(Starting, TellsWhyItAsksBeforeThePictureThatIsNamedReplacesTheOneBroughtBack)
{
    Made("b.bmp", Drawn({"xyz"}));
    KillWithUnsavedWork();
    dialogs.answers = {true, false};
    std::vector<ShownBox> told;
    RunWith({"b.bmp"}, [&] { told = dialogs.told; });
    EXPECT_EQ(told, (std::vector<ShownBox>{
                        {BoxIcon::None, "Avviso!",
                         "L'immagine recuperata non è ancora stata salvata. Prima di aprire «" +
                             Path("b.bmp") + "» Pixano chiede che cosa farne."}}));
    EXPECT_EQ(dialogs.asked.size(), 2U);
}

TEST_F(Starting, KeepsThePictureBroughtBackWhenItsSaveIsCancelled)
{
    Made("b.bmp", Drawn({"xyz"}));
    KillWithUnsavedWork();
    dialogs.answers = {true, true};
    dialogs.saveNames.push_back(std::nullopt);
    RunWith({"b.bmp"}, [&] {
        EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_TRUE(ReadRecoveryNote());
        dialogs.answers = {false};
    });
}

TEST_F(Starting, GoesOnThoughThePreviewOfThePictureBroughtBackHasNoFile)
{
    KillWithUnsavedWork();
    QDir().mkpath("altrove/elabor.tmp");
    QDir::setCurrent("altrove");
    dialogs.answers = {true};
    Letters seen;
    EXPECT_EQ(RunWith({},
                      [&] {
                          seen = CanvasLetters();
                          dialogs.answers = {false};
                      }),
              0);
    EXPECT_EQ(seen, (Letters{"cba"}));
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told[0].text.startsWith("Errore durante il comando «Recupero»:\n"));
}

TEST_F(Starting, WorksInTheDataFolderWhenStartedFromTheMenu)
{
    const QString here = QDir::currentPath();
    Made("a.bmp", Drawn({"abc"}));
    const QStringList before = QDir::current().entryList();
    QString opened;
    EXPECT_EQ(RunWith({"--da-menu", "a.bmp"},
                      [&] {
                          opened = session.doc.FileAperto;
                          EXPECT_EQ(QDir::currentPath(), QFileInfo(Data("x")).path());
                          EXPECT_EQ(session.doc.CartellaAvvio, QDir::currentPath());
                      }),
              0);
    // The name was relative to the folder that the user was in; nothing was written there.
    EXPECT_EQ(opened, here + "/a.bmp");
    EXPECT_EQ(QDir(here).entryList(), before);
    EXPECT_TRUE(Exists(Data("percors.dat")));
}

TEST_F(Starting, LooksForPicturesAmongTheUsersWhenStartedFromTheMenu)
{
    dialogs.openNames.push_back(std::nullopt);
    RunWith({"--da-menu"}, [&] { ClickEntry(entry::Apri); });
    EXPECT_EQ(
        dialogs.openFolders,
        (std::vector<QString>{QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}));
}

TEST_F(Starting, PutsTheStrengthsIntoTheDataFolderForTheUserAlone)
{
    // As they lie in a folder of the system: nobody may write them.
    ASSERT_TRUE(QFile::setPermissions(Beside("valori.tip"),
                                      QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    RunWith({"--da-menu"}, [&] { EXPECT_EQ(session.programFolder, QDir::currentPath()); });
    EXPECT_EQ(Bytes(Data("valori.tip")), Bytes(Beside("valori.tip")));
    constexpr auto Own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(Data("valori.tip")), Own);
}

TEST_F(Starting, LeavesTheStrengthsThatTheUserHas)
{
    QDir().mkpath(Data(""));
    Write(Data("valori.tip"), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    RunWith({"--da-menu"});
    EXPECT_EQ(Bytes(Data("valori.tip")), "1\r\n2\r\n3\r\n4\r\n5\r\n");
}

TEST_F(Starting, StartsFromTheMenuWithoutStrengthsToo)
{
    QFile::remove(Beside("valori.tip"));
    EXPECT_EQ(RunWith({"--da-menu"}), 0);
    EXPECT_FALSE(Exists(Data("valori.tip")));
    EXPECT_TRUE(dialogs.told.empty());
}

}  // namespace
}  // namespace pixano::test
