// "&Salva File": the name, the question before a file is replaced, and saves that fail.
#include "document/seen.h"
#include "support/program.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

/// A picture is open that was changed once: "cba" instead of "abc".
class Saving : public Program {
  protected:
    Saving()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
    }

    static ShownBox MayReplace(const QString& path)
    {
        return {BoxIcon::Exclamation, "Attenzione!",
                "File " + path + " già esistente, sostituire i file?"};
    }
    static ShownBox NotSaved(const QString& path, const QString& why)
    {
        return {BoxIcon::Exclamation, "Attenzione!",
                "Impossibile salvare «" + path + "»: " + why + "."};
    }
};

TEST_F(Saving, WritesTheCanvasAsABitmap)
{
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
    EXPECT_EQ(Bytes("s.bmp").substr(0, 2), "BM");
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NomeSalvato, Path("s.bmp"));
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Saving, FollowsTheSavedFileWithNameAndFolderAndSwitchesItselfOff)
{
    QDir::current().mkdir("qui");
    SaveAs(Path("qui/s.bmp"));
    EXPECT_EQ(session.doc.NomeCorto, "s.bmp");
    EXPECT_EQ(session.doc.Cartella, Path("qui/"));
    EXPECT_FALSE(Enabled(entry::Salva));
}

TEST_F(Saving, NeverLoadsWhatItSaved)
{
    session.doc.Modificato = 0;
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    // Loading would caption the canvas with the file's name and switch the history off.
    EXPECT_EQ(CanvasCaption(), "Specchio   3x1");
    EXPECT_EQ(MenuHistory(), (History{false, true, false}));
    EXPECT_EQ(session.doc.NomeFile, Path("a.bmp"));
    EXPECT_EQ(session.doc.FileAperto, Path("a.bmp"));
}

TEST_F(Saving, LetsAnyExtensionOfThreeLettersGiveWay)
{
    SaveAs(Path("s.xyz"));
    EXPECT_TRUE(Exists(Path("s.bmp")));
    EXPECT_FALSE(Exists(Path("s.xyz")));
}

TEST_F(Saving, DropsTheLastFourCharactersWhateverTheyAre)
{
    SaveAs(Path("foto.jpeg"));
    EXPECT_TRUE(Exists(Path("foto..bmp")));
    Apply("Specchio");
    SaveAs(Path("abcdefgh"));
    EXPECT_TRUE(Exists(Path("abcd.bmp")));
}

TEST_F(Saving, OffersTheFolderOfTheOpenPicture)
{
    dialogs.saveNames.push_back(std::nullopt);
    ClickEntry(entry::Salva);
    EXPECT_EQ(dialogs.saveFolders, (std::vector<QString>{QDir::currentPath() + '/'}));
}

TEST_F(Saving, ChangesNothingWhenItIsCancelled)
{
    const Seen before(session);
    dialogs.saveNames.push_back(std::nullopt);
    ClickEntry(entry::Salva);
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Saving, ReplacesAnExistingFileOnlyAfterYes)
{
    Write("s.bmp", "vecchio");
    dialogs.answers = {true};
    SaveAs(Path("s.xyz"));
    EXPECT_EQ(dialogs.asked, (std::vector<ShownBox>{MayReplace(Path("s.bmp"))}));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
}

TEST_F(Saving, AsksForAnotherNameAsOftenAsTheAnswerIsNo)
{
    Write("s.bmp", "vecchio");
    Write("t.bmp", "vecchio");
    dialogs.answers = {false, false, true};
    dialogs.saveNames = {Path("s.jpg"), Path("t.bmp"), Path("s.bmp")};
    ClickEntry(entry::Salva);
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{MayReplace(Path("s.bmp")), MayReplace(Path("t.bmp")),
                                     MayReplace(Path("s.bmp"))}));
    // The name that was not taken stands there to be changed, as it was chosen.
    const QString folder = QDir::currentPath();
    EXPECT_EQ(dialogs.saveFolders, (std::vector<QString>{folder + '/', folder, folder}));
    EXPECT_EQ(dialogs.saveBeginnings, (std::vector<QString>{"", "s.jpg", "t.bmp"}));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
    EXPECT_EQ(Bytes("t.bmp"), "vecchio");
}

TEST_F(Saving, CanBeCancelledAfterNo)
{
    Write("s.bmp", "vecchio");
    dialogs.answers = {false};
    dialogs.saveNames = {Path("s.bmp"), std::nullopt};
    const Seen before(session);
    ClickEntry(entry::Salva);
    EXPECT_EQ(Bytes("s.bmp"), "vecchio");
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Saving, TellsThatTheFolderVanishedAndKeepsEverything)
{
    const Seen before(session);
    SaveAs(Path("manca/s.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{NotSaved(Path("manca/s.bmp"), "la cartella non esiste")}));
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(Saving, TellsThatAFolderBearsTheName)
{
    QDir::current().mkdir("s.bmp");
    const Seen before(session);
    dialogs.answers = {true};
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{NotSaved(Path("s.bmp"), "è una cartella")}));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Saving, LeavesAProtectedFileAsItWas)
{
    // The administrator may write everything; a pipe is refused whoever asks.
    ASSERT_EQ(mkfifo(Path("s.bmp").toUtf8().constData(), 0600), 0);
    const Seen before(session);
    dialogs.answers = {true};
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Saving, AsksAgainWhereNoLetterOfTheNameWouldBeLeft)
{
    QDir().mkdir("dest");
    for (const QString name : {"dest/a.b", "abcd", "dest/.bmp", "dest/x"}) {
        dialogs.told.clear();
        dialogs.saveNames = {Path(name), std::nullopt};
        ClickEntry(entry::Salva);
        EXPECT_TRUE(dialogs.saveNames.empty());
        EXPECT_EQ(dialogs.saveBeginnings.back(), QFileInfo(name).fileName());
        EXPECT_EQ(dialogs.told,
                  (std::vector<ShownBox>{
                      {BoxIcon::Exclamation, "Attenzione!",
                       "Il nome del file «" + Path(name) +
                           "» è troppo corto: senza gli ultimi quattro caratteri, che lasciano il "
                           "posto a «.bmp», non ne resta niente."}}));
    }
    EXPECT_FALSE(Exists("dest.bmp"));
    EXPECT_TRUE(QDir("dest").isEmpty());
    EXPECT_EQ(session.doc.Modificato, 1);
    // One letter is enough.
    SaveAs(Path("dest/ab.cd"));
    EXPECT_TRUE(Exists("dest/a.bmp"));
}

TEST_F(Saving, CanBeTriedAgainAfterAFailure)
{
    SaveAs(Path("manca/s.bmp"));
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(Kept(Path("s.bmp")), (Letters{"cba"}));
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(Saving, CaptionsThePreviewWithTheSavedNameAfterTheNextEffect)
{
    SaveAs(Path("s.bmp"));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (3 x 1) - 100%");
    Apply("Specchio");
    EXPECT_EQ(PreviewCaption(), "s.bmp  (3 x 1) - 100%");
    EXPECT_TRUE(Enabled(entry::Salva));
}

}  // namespace
}  // namespace pixano::test
