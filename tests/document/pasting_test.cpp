// Opening what lies in the clipboard: a picture file, or a picture that has no file yet.
#include "document/pasting.h"
#include "support/hindrances.h"
#include "support/program.h"

#include <QClipboard>
#include <QMimeData>
#include <QUrl>

namespace pixano::test {
namespace {

/// The picture as other programs put it into the clipboard.
QImage ImageOf(const Surface& picture)
{
    QImage image(picture.Width(), picture.Height(), QImage::Format_RGB32);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const Colour colour = picture.Point(x, y);
            image.setPixel(x, y, qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF));
        }
    return image;
}

class Pasting : public Program {
  protected:
    ~Pasting() override { QApplication::clipboard()->clear(); }

    static void CopyPicture(const QImage& image) { QApplication::clipboard()->setImage(image); }
    static void CopyFiles(const QList<QUrl>& urls)
    {
        auto* const data = new QMimeData;
        data->setUrls(urls);
        QApplication::clipboard()->setMimeData(data);
    }
    void Paste()
    {
        session.form1.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&session.form1));
        QTest::keyClick(&session.form1, Qt::Key_V, Qt::ControlModifier);
    }
    /// The files that pasted pictures are kept in.
    QStringList KeptFiles() const { return QDir(Data("")).entryList({"appunti-*"}, QDir::Files); }
};

TEST_F(Pasting, OpensAPicture)
{
    CopyPicture(ImageOf(Drawn({"abc", "def"})));
    Paste();
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_EQ(PreviewLetters(), (Letters{"abc", "def"}));
    EXPECT_TRUE(CanvasCaption().endsWith("   3x2")) << CanvasCaption().toStdString();
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_TRUE(dialogs.openFolders.empty());
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Pasting, ShowsTheBackgroundWhereAPictureIsTransparent)
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(0, 0, 0, 0));
    image.setPixel(1, 0, qRgba(255, 255, 255, 255));
    CopyPicture(image);
    Paste();
    EXPECT_EQ(CanvasLetters(), (Letters{".~"}));
}

TEST_F(Pasting, OpensAPictureOfFewColours)
{
    QImage image(9, 1, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    image.fill(0);
    image.setPixel(8, 0, 1);
    CopyPicture(image);
    Paste();
    EXPECT_EQ(CanvasLetters(), (Letters{"########~"}));
}

TEST_F(Pasting, LetsThePictureBeElaboratedAndBroughtBack)
{
    CopyPicture(ImageOf(Drawn({"abc"})));
    Paste();
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    // What the clipboard holds now matters no more.
    CopyPicture(ImageOf(Drawn({"xyz"})));
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
}

TEST_F(Pasting, KeepsThePictureNoLongerThanTheProgramRuns)
{
    CopyPicture(ImageOf(Drawn({"abc"})));
    Paste();
    CopyPicture(ImageOf(Drawn({"de"})));
    // They are kept under names of the millisecond.
    const QTime before = QTime::currentTime();
    while (QTime::currentTime() == before) {
    }
    Paste();
    EXPECT_EQ(KeptFiles().size(), 2);
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(KeptFiles(), QStringList());
}

TEST_F(Pasting, OpensAFile)
{
    CopyFiles({QUrl::fromLocalFile(Made("due parole.bmp", Drawn({"abc"})))});
    Paste();
    EXPECT_EQ(CanvasCaption(), "due parole.bmp   3x1");
    EXPECT_EQ(session.doc.FileAperto, Path("due parole.bmp"));
    EXPECT_EQ(KeptFiles(), QStringList());
    // It is the user's own file.
    EXPECT_TRUE(session.form1.close());
    EXPECT_TRUE(Exists(Path("due parole.bmp")));
}

TEST_F(Pasting, TellsThatAFileIsNoPictureOrHasGone)
{
    Write("testo.txt", "niente figure");
    const ShownBox none{BoxIcon::Exclamation, "Attenzione!",
                        "Impossibile leggere «" + Path("testo.txt") +
                            "»: non è un'immagine BMP, JPEG o GIF."};
    const ShownBox gone{BoxIcon::Exclamation, "Attenzione!",
                        "File " + Path("andata.bmp") + " non trovato!"};
    for (const char* const name : {"testo.txt", "andata.bmp"}) {
        CopyFiles({QUrl::fromLocalFile(Path(name))});
        Paste();
    }
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{none, gone}));
}

TEST_F(Pasting, SaysThatItDoesNothingWithAnythingElse)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    const QList<QUrl> two{QUrl::fromLocalFile(Made("b.bmp", Drawn({"x"}))),
                          QUrl::fromLocalFile(Made("c.bmp", Drawn({"y"})))};
    const char* const none = "Negli appunti non c'è un'immagine.";
    const std::vector<std::pair<std::function<void()>, const char*>> copies{
        {[] { QApplication::clipboard()->clear(); }, none},
        {[] { QApplication::clipboard()->setText("file:///tmp/a.bmp"); }, none},
        {[] { CopyFiles({QUrl("https://example.org/a.bmp")}); }, none},
        {[] {
             auto* const broken = new QMimeData;
             broken->setData("application/x-qt-image", "niente");
             QApplication::clipboard()->setMimeData(broken);
         },
         "L'immagine negli appunti non si può leggere."},
        {[two] { CopyFiles(two); },
         "Negli appunti c'è più di un file: Pixano ne apre uno alla volta."},
    };
    for (const auto& [copy, said] : copies) {
        copy();
        Paste();
        EXPECT_EQ(std::exchange(dialogs.told, {}),
                  (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!", said}}));
    }
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    EXPECT_TRUE(dialogs.asked.empty() && KeptFiles().empty());
}

TEST_F(Pasting, LeadsNoDialogIntoTheProgramsOwnFolder)
{
    CopyPicture(ImageOf(Drawn({"abc"})));
    Paste();
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders.back(), QDir::currentPath());
    Apply("Specchio");
    QDir::current().mkdir("figure");
    SaveAs(Path("figure/s.bmp"));
    EXPECT_EQ(dialogs.saveFolders.back(), QDir::currentPath());
    Apply("Specchio");
    SaveAs(Path("figure/t.bmp"));
    EXPECT_EQ(dialogs.saveFolders.back(), Path("figure/"));
}

TEST_F(Pasting, LeavesThePathOfTheLastFileRemembered)
{
    QDir::current().mkdir("figure");
    Open("figure/a.bmp", Drawn({"abc"}));
    CopyPicture(ImageOf(Drawn({"xy"})));
    Paste();
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(dialogs.openFolders.back(), Path("figure"));
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("figure/a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Pasting, AsksAboutUnsavedChangesFirst)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    CopyPicture(ImageOf(Drawn({"xy"})));
    dialogs.answers = {false};
    Paste();
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{
                  {BoxIcon::Question, "Messaggio!", "Salvare i cambiamenti del file elaborato?"}}));
    EXPECT_EQ(CanvasLetters(), (Letters{"xy"}));
}

TEST_F(Pasting, TellsThatAPictureCannotBeKept)
{
    CopyPicture(ImageOf(Varied(40, 40)));
    {
        const FileSizeLimit limit(1000);
        Paste();
    }
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told[0].text.startsWith("Errore durante il comando «Incolla»:\n"))
        << dialogs.told[0].text.toStdString();
    EXPECT_FALSE(session.doc.open);
    EXPECT_EQ(KeptFiles(), QStringList());
    EXPECT_FALSE(session.ending);
}

}  // namespace
}  // namespace pixano::test
