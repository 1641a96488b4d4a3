// Which picture the program opens when it starts, and in which folder it works.
#include "document/recovery_note.h"
#include "shell/handing_over.h"
#include "shell/starting.h"
#include "windows/file_names.h"

namespace pixano::test {
namespace {

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
    const QString copy = Path("elabor.tmp");
    QDir::setCurrent("altrove");
    dialogs.answers = {true};
    Letters seen;
    EXPECT_EQ(RunWith({},
                      [&] {
                          seen = CanvasLetters();
                          const std::optional<RecoveryNote> note = ReadRecoveryNote();
                          EXPECT_TRUE(note && note->copy == copy) << "where it still lies";
                          dialogs.answers = {false};
                      }),
              0);
    EXPECT_EQ(seen, (Letters{"cba"}));
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told[0].text.startsWith("L'anteprima mostra l'immagine com'è ora, ma "));
}

TEST_F(Starting, TellsWhatItNoLongerOpensWhereItEndsMeanwhile)
{
    const QString first = Made("b.bmp", Drawn({"xyz"}));
    const QString second = Made("c.bmp", Drawn({"xyz"}));
    const QString late = Made("d.bmp", Drawn({"xyz"}));
    // While it asks, while it tells of the first ones, and no more.
    std::deque<QStringList> handed{{first, second, first, second}, {late}};
    RunWith({}, [&] {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
        dialogs.answers = {false};
        dialogs.meanwhile = [&] {
            if (handed.empty()) return;
            for (const QString& picture : handed.front())
                EXPECT_TRUE(HandOverMeanwhile(Data("."), picture));
            handed.pop_front();
        };
        session.form1.close();
        EXPECT_FALSE(Exists(Data("pixano.socket"))) << "nobody is heard any more";
    });
    const auto box = [](const QString& pictures) {
        return ShownBox{BoxIcon::Exclamation, "Attenzione!",
                        "Prima di chiudersi Pixano non ha aperto:\n«" + pictures + "»."};
    };
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{box(first + "»,\n«" + second), box(late)}));
}

TEST_F(Starting, BringsBackNoWindowThatWasClosedWhileItWasMinimised)
{
    RunWith({}, [&] {
        Open("a.bmp", Drawn({"abc"}));
        session.form10.showMinimized();
        session.form9.showMinimized();
        session.form2.close();
        EXPECT_TRUE(HandOverMeanwhile(Data("."), {}));
        EXPECT_FALSE(session.form2.isVisible() || session.form9.isVisible());
        EXPECT_FALSE(session.form10.isMinimized() && session.form10.isVisible());
    });
}

// The main window, which takes no click meanwhile, would come before it.
TEST_F(Starting, BringsForwardWhatAsksWhenItIsStartedAgain)
{
    constexpr int TimeToChange = 200;
    const auto comesForward = [](const QWidget& window) {
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
    };
    RunWith({}, [&] {
        EXPECT_TRUE(HandOverMeanwhile(Data("."), {}));
        EXPECT_TRUE(comesForward(session.form1));
        QDialog question(&session.form1);
        question.open();
        EXPECT_TRUE(comesForward(question));
        EXPECT_TRUE(HandOverMeanwhile(Data("."), {}));
        EXPECT_FALSE(QTest::qWaitFor([&] { return QApplication::activeWindow() != &question; },
                                     TimeToChange));
    });
}

}  // namespace
}  // namespace pixano::test
