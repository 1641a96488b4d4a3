// Pictures dropped onto the windows, and the one named when the program starts.
#include "document/opening.h"
#include "support/program.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace pixano::test {
namespace {

/// Drags the file over the widget and lets it go. False when the widget does not welcome it.
bool Drop(QWidget& onto, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&onto, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&onto, &drop);
    return true;
}

QList<QUrl> Files(const QString& path)
{
    return {QUrl::fromLocalFile(path)};
}

TEST_F(Program, OpensAPictureDroppedOntoTheMainWindow)
{
    EXPECT_TRUE(Drop(session.form1, Files(Made("a.bmp", Drawn({"abc"})))));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_TRUE(dialogs.openFolders.empty());
    EXPECT_EQ(Bytes("percors.dat"), "\"" + Path("a.bmp").toStdString() + "\"\r\n");
}

TEST_F(Program, OpensAPictureDroppedOntoTheCanvas)
{
    Open("a.bmp", Drawn({"abc"}));
    EXPECT_TRUE(Drop(session.form2.Picture1(), Files(Made("b.bmp", Drawn({"xy"})))));
    EXPECT_EQ(CanvasCaption(), "b.bmp   2x1");
}

TEST_F(Program, OpensAPictureDroppedBesideThePictureInTheCanvasWindow)
{
    Open("a.bmp", Drawn({"abc"}));
    EXPECT_TRUE(Drop(*session.form2.viewport(), Files(Made("b.bmp", Drawn({"xy"})))));
    EXPECT_EQ(CanvasCaption(), "b.bmp   2x1");
}

TEST_F(Program, OpensADroppedPictureWhoseNameIsNoUtf8)
{
    const std::string picture = Path("m").toStdString() + "\xE0re.bmp";
    SaveBitmap(Drawn({"abc"}), picture);
    const QUrl url = QUrl::fromEncoded("file://" + Path("m").toUtf8() + "%E0re.bmp");
    EXPECT_TRUE(Drop(session.form1, {url}));
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_TRUE(dialogs.told.empty());
    std::filesystem::remove(picture);
}

TEST_F(Program, AsksAboutUnsavedChangesBeforeADroppedPictureIsOpened)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.answers = {false};
    EXPECT_TRUE(Drop(session.form1, Files(Made("b.bmp", Drawn({"xy"})))));
    EXPECT_EQ(dialogs.asked,
              (std::vector<ShownBox>{
                  {BoxIcon::Question, "Messaggio!", "Salvare i cambiamenti del file elaborato?"}}));
    EXPECT_EQ(CanvasCaption(), "b.bmp   2x1");
}

TEST_F(Program, KeepsItsChangesWhenTheOpenPictureItselfIsDroppedAfterNo)
{
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    dialogs.answers = {false};
    EXPECT_TRUE(Drop(session.form1, Files(Path("a.bmp"))));
    EXPECT_EQ(CanvasLetters(), (Letters{"cba"}));
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(Program, WelcomesNeitherWebAddressesNorSeveralFiles)
{
    EXPECT_FALSE(Drop(session.form1, {QUrl("https://example.org/a.bmp")}));
    QList<QUrl> two = Files(Made("a.bmp", Drawn({"abc"})));
    two += Files(Made("b.bmp", Drawn({"abc"})));
    EXPECT_FALSE(Drop(session.form1, two));
    EXPECT_FALSE(session.form2.isVisible());
}

TEST_F(Program, OpensAPictureThatWasNamedInAdvanceWithoutADialog)
{
    OpenNamed(session, Made("a.bmp", Drawn({"abc"})));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_TRUE(dialogs.openFolders.empty());
}

TEST_F(Program, TellsThatADroppedPictureDoesNotExist)
{
    emit session.drops.Dropped(Path("no.bmp"));
    EXPECT_EQ(dialogs.told, (std::vector<ShownBox>{{BoxIcon::Exclamation, "Attenzione!",
                                                    "File " + Path("no.bmp") + " non trovato!"}}));
}

}  // namespace
}  // namespace pixano::test
