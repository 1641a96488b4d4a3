// Pictures and folders whose names are no UTF-8: opened, remembered, read again, saved, recovered.
#include "document/recovery_note.h"
#include "support/program.h"
#include "windows/file_names.h"

namespace pixano::test {
namespace {

class OddNames : public Program {
  protected:
    /// A file in a folder of the current one, both with names in Latin 1.
    const std::string folder = FileBytes(CurrentFolder()) + "/caff\xE8/";
    const std::string picture = folder + "m\xE0re \xC3\xA9.bmp";
    const QString name = FileName(picture);

    OddNames()
    {
        std::filesystem::create_directory(folder);
        SaveBitmap(Drawn({"abc", "def"}), picture);
    }
    // The toolkit's own folder of the test cannot be rid of such names.
    ~OddNames() override { std::filesystem::remove_all(folder); }
};

TEST_F(OddNames, AreOpenedAndRemembered)
{
    Open(name);
    EXPECT_TRUE(dialogs.told.empty());
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_EQ(FileBytes(CanvasCaption()), "m\xE0re \xC3\xA9.bmp   3x2");
    EXPECT_EQ(Bytes("percors.dat"), '"' + picture + "\"\r\n");
    dialogs.openNames.push_back(std::nullopt);
    ClickEntry(entry::Apri);
    EXPECT_EQ(FileBytes(dialogs.openFolders.back()) + '/', folder);
}

TEST_F(OddNames, AreReadAgain)
{
    Open(name);
    Apply("Specchio");
    EXPECT_EQ(CanvasLetters(), (Letters{"cba", "fed"}));
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc", "def"}));
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(OddNames, AreSaved)
{
    Open(name);
    Apply("Specchio");
    const std::string result = folder + "copi\xE0.bmp";
    SaveAs(FileName(result));
    EXPECT_EQ(FileBytes(dialogs.saveFolders.back()), folder);
    EXPECT_EQ(LettersOf(ReadPicture(result).picture), (Letters{"cba", "fed"}));
    EXPECT_EQ(FileBytes(session.doc.NomeSalvato), result);
    // What has that name already is asked for.
    Apply("Specchio");
    dialogs.answers.push_back(true);
    SaveAs(FileName(result));
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(LettersOf(ReadPicture(result).picture), (Letters{"abc", "def"}));
    EXPECT_EQ(BytesOf(picture), BytesOf(result));
}

TEST_F(OddNames, AreNotedForRecovery)
{
    Open(name);
    Apply("Specchio");
    const std::optional<RecoveryNote> note = ReadRecoveryNote();
    ASSERT_TRUE(note);
    EXPECT_EQ(FileBytes(note->picture), picture);
}

TEST_F(OddNames, OfTheFolderThatTheProgramWorksIn)
{
    GoToFolder(FileName(folder));
    session.doc.CartellaAvvio = CurrentFolder();
    Open(AbsolutePath(FileName("m\xE0re \xC3\xA9.bmp")));
    Apply("Specchio");
    EXPECT_EQ(FileBytes(ReadRecoveryNote().value().copy), folder + "elabor.tmp");
    EXPECT_EQ(BytesOf(folder + "percors.dat"), '"' + picture + "\"\r\n");
    EXPECT_EQ(FileBytes(CurrentFolder()) + '/', folder);
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(OddNames, AreTold)
{
    Open(FileName(folder + "non c'\xE8.bmp"));
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(FileBytes(dialogs.told[0].text), "File " + folder + "non c'\xE8.bmp non trovato!");
}

}  // namespace
}  // namespace pixano::test
