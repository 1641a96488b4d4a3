// Openings that come to nothing: what is told, and everything as it was before.
#include "document/seen.h"
#include "support/hindrances.h"
#include "support/program.h"

#include <sys/stat.h>

namespace pixano::test {
namespace {

/// The box that says why the picture at `path` cannot be read.
ShownBox Unreadable(const QString& path, const QString& why)
{
    return {BoxIcon::Exclamation, "Attenzione!",
            "Impossibile leggere «" + path + "»: " + why + "."};
}

TEST_F(Program, TellsThatTheChosenFileDoesNotExist)
{
    Open("a.bmp", Drawn({"abc"}));
    const Seen before(session);
    Open(Path("no.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                                    "File " + Path("no.bmp") + " non trovato!"}}));
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Program, SaysNothingWhenTheOpenDialogIsCancelled)
{
    const Seen before(session);
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_FALSE(session.form2.isVisible());
}

TEST_F(Program, TellsWhyAFileIsNoPictureAndKeepsTheOneThatIsOpen)
{
    Open("a.bmp", Drawn({"abc"}));
    const Seen before(session);
    Write("b.bmp", "solo testo");
    Open(Path("b.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{
                                Unreadable(Path("b.bmp"), "non è un'immagine BMP, JPEG o GIF")}));
    EXPECT_TRUE(Seen(session) == before);
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Program, TellsThatAFileMayNotBeReadRatherThanThatItIsMissing)
{
    QDir().mkdir("chiusa");
    Write("chiusa/b.bmp", "");
    const OrdinaryUser user{Root().toStdString()};
    ASSERT_EQ(chmod("chiusa", 0), 0);
    Open(Path("chiusa/b.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{Unreadable(Path("chiusa/b.bmp"), "manca il permesso")}));
    chmod("chiusa", 0700);
}

TEST_F(Program, RefusesAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo(Path("a.bmp").toUtf8().constData(), 0600), 0);
    const Seen before(session);
    Open(Path("a.bmp"));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{Unreadable(Path("a.bmp"), "è una pipe, non un file")}));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Program, RefusesAFolder)
{
    QDir::current().mkdir("a.bmp");
    const Seen before(session);
    Open(Path("a.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{Unreadable(Path("a.bmp"), "è una cartella")}));
    EXPECT_TRUE(Seen(session) == before);
}

TEST_F(Program, IgnoresAPipeWhereTheRememberedPathShouldBe)
{
    ASSERT_EQ(mkfifo(Path("percors.dat").toUtf8().constData(), 0600), 0);
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders.size(), 1U);
}

TEST_F(Program, MakesTheStartUpFolderCurrentAgainAfterAnUnreadableFile)
{
    Write("a.bmp", "solo testo");
    const QString name = Path("a.bmp");
    dialogs.meanwhile = [this] {
        if (dialogs.told.empty()) QDir::setCurrent("/");
    };
    Open(name);
    EXPECT_EQ(QDir::currentPath(), session.doc.CartellaAvvio);
}

TEST_F(Program, OffersTheFolderOfTheOpenPictureWhereItsPathCannotBeKept)
{
    QDir().mkdir("percors.dat");
    QDir().mkdir("altrove");
    Open("altrove/a.bmp", Drawn({"abc"}));
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders.back(), Path("altrove"));
}

}  // namespace
}  // namespace pixano::test
