// Opening a picture that can be read: what the windows show of it, and what is kept of its path.
#include "support/program.h"

namespace pixano::test {
namespace {

TEST_F(Program, ShowsAPictureThatWasOpened)
{
    Open("a.bmp", Drawn({"abc", "def"}));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_EQ(PreviewLetters(), (Letters{"abc", "def"}));
    EXPECT_TRUE(session.form2.isVisible());
    EXPECT_TRUE(session.form9.isVisible());
    EXPECT_TRUE(session.form10.isVisible());
    EXPECT_EQ(session.work.Larg, 3);
    EXPECT_EQ(session.work.Alt, 2);
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Program, CaptionsCanvasAndPreviewWithNameAndSize)
{
    Open("a.bmp", Varied(200, 100));
    EXPECT_EQ(CanvasCaption(), "a.bmp   200x100");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 100%");
}

TEST_F(Program, CaptionsAFileWhoseNameLooksLikeAPlaceToFill)
{
    Open("50%2 %1.bmp", Drawn({"abc"}));
    EXPECT_EQ(CanvasCaption(), "50%2 %1.bmp   3x1");
    EXPECT_EQ(PreviewCaption(), "50%2 %1.bmp  (3 x 1) - 100%");
}

TEST_F(Program, SplitsThePathIntoNameAndFolder)
{
    QDir::current().mkdir("figure");
    Open("figure/a.b.bmp", Drawn({"abc"}));
    EXPECT_EQ(session.doc.NomeFile, Path("figure/a.b.bmp"));
    EXPECT_EQ(session.doc.FileAperto, Path("figure/a.b.bmp"));
    EXPECT_EQ(session.doc.NomeCorto, "a.b.bmp");
    EXPECT_EQ(session.doc.Cartella, Path("figure/"));
    EXPECT_EQ(session.doc.Modificato, 0);
}

TEST_F(Program, TakesTheBackslashForASeparatorToo)
{
    Open("uno\\due.bmp", Drawn({"abc"}));
    EXPECT_EQ(session.doc.NomeCorto, "due.bmp");
    EXPECT_EQ(session.doc.Cartella, Path("uno\\"));
}

TEST_F(Program, StartsAnotherPictureFromTheBeginning)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    SaveAs(Path("b.bmp"));
    Button("Command1").click();
    ASSERT_EQ(session.doc.NomeSalvato, Path("b.bmp"));
    Open("c.bmp", Drawn({"abcd"}));
    EXPECT_EQ(session.doc.Zoom, 1);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(session.doc.NomeSalvato, "");
    EXPECT_EQ(session.work.Larg, 4);
    EXPECT_EQ(PreviewCaption(), "c.bmp  (4 x 1) - 100%");
}

TEST_F(Program, ReadsAPictureByItsContentWhateverItsName)
{
    QFile::rename(Made("a.bmp", Drawn({"abc"})), Path("a.txt"));
    Open(Path("a.txt"));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_EQ(CanvasCaption(), "a.txt   3x1");
}

TEST_F(Program, OpensATruncatedPictureWithANotice)
{
    // A header of 54 bytes and two rows of 12 bytes, the lower one first: the upper one is cut off.
    const std::string whole = [] {
        Made("intera.bmp", Drawn({"abcd", "efgh"}));
        return Bytes("intera.bmp");
    }();
    ASSERT_EQ(whole.size(), 78U);
    Write("a.bmp", whole.substr(0, 66));
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"....", "efgh"}));
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                      "Il file «" + Path("a.bmp") +
                                          "» è incompleto o danneggiato: alcuni pixel "
                                          "mancano o non sono quelli giusti."}}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   4x2");
}

TEST_F(Program, BringsPaletteAndMainWindowForwardAfterOpening)
{
    Open("a.bmp", Drawn({"abc"}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(session.form10.isVisible());
    EXPECT_EQ(QApplication::activeWindow(), &session.form1);
}

// ---- the remembered path ----

TEST_F(Program, KeepsThePathOfAnOpenedPictureInQuotesOnALineOfItsOwn)
{
    const QString path = Made("perché.bmp", Drawn({"abc"}));
    Open(path);
    EXPECT_EQ(Bytes("percors.dat"), "\"" + path.toStdString() + "\"\r\n");
}

TEST_F(Program, OffersTheFolderOfTheRememberedPicture)
{
    Write("percors.dat", "\"/figure/mare/onda.bmp\"\r\n");
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders, (std::vector<QString>{"/figure/mare"}));
}

TEST_F(Program, OffersTheStartUpFolderWhenNothingIsRemembered)
{
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    ASSERT_EQ(dialogs.openFolders.size(), 1U);
    EXPECT_EQ(QDir(dialogs.openFolders[0]).canonicalPath(), QDir::current().canonicalPath());
}

TEST_F(Program, LooksForTheRememberedPathInTheStartUpFolderOnly)
{
    QDir::current().mkdir("altrove");
    QDir::setCurrent(Path("altrove"));
    const QString path = Made("a.bmp", Drawn({"abc"}));
    Open(path);
    EXPECT_EQ(QDir::currentPath(), session.doc.CartellaAvvio);
    EXPECT_TRUE(Exists(Path("percors.dat")));
    EXPECT_FALSE(Exists(Path("altrove/percors.dat")));
}

TEST_F(Program, OpensTheRememberedPictureWhenNoneIsOpen)
{
    const QString path = Made("a.bmp", Drawn({"abc"}));
    Write("percors.dat", "\"" + path.toStdString() + "\"\r\n");
    Open(path);
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
}

TEST_F(Program, OpensAPictureAllTheSameWhenItsPathCannotBeKept)
{
    QDir::current().mkdir("percors.dat");
    Open("a.bmp", Drawn({"abc"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
}

}  // namespace
}  // namespace pixano::test
