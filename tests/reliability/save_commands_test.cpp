// The commands that save, while the system fails: the user is told, and nothing else has changed.
#include "reliability/preload/failing_calls.h"
#include "support/hindrances.h"
#include "support/program.h"
#include "support/temporary_folder.h"

#include <gmock/gmock-matchers.h>

#include <climits>

#include <sys/stat.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A changed picture, and a file under whose name it is to be saved.
class FailingCommand : public Program {
  protected:
    FailingCommand()
    {
        Open("aperta.bmp", Varied(30, 20));
        Apply("Specchio");
        QDir().mkdir("altra");
        target = Path("altra/figura.bmp");
        WriteBytes(target.toStdString(), old);
        SaveBitmap(Canvas(), Path("nuova").toStdString());
        whole = BytesOf(Path("nuova").toStdString());
        picture = Canvas();
    }

    /// The file is the old one, nothing else is in its folder, the picture is as it was.
    void ExpectNothingLost(const QString& name)
    {
        EXPECT_EQ(BytesOf(target.toStdString()), old);
        EXPECT_EQ(QDir("altra").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList("figura.bmp"));
        EXPECT_EQ(Canvas(), picture);
        EXPECT_EQ(session.doc.Modificato, 1);
        EXPECT_TRUE(Enabled(entry::Salva));
        EXPECT_FALSE(session.ending);
        EXPECT_TRUE(session.form2.isVisible());
        ExpectTold(name);
    }
    void ExpectTold(const QString& name)
    {
        ASSERT_EQ(dialogs.told.size(), 1U);
        EXPECT_EQ(dialogs.told[0].icon, BoxIcon::Exclamation);
        EXPECT_EQ(dialogs.told[0].title, "Attenzione!");
        const QString text = "Impossibile salvare «" + name + "»: ";
        EXPECT_THAT(dialogs.told[0].text.toStdString(), StartsWith(text.toStdString()));
        dialogs.told.clear();
    }

    /// Lets the first call of `command` fail, then the second, and so on, until the picture is
    /// saved though all fail from there on.
    template <class Command>
    long EachCallInTurn(int error, Command command)
    {
        for (long n = 1;; ++n) {
            SCOPED_TRACE("from call " + std::to_string(n) + " on, error " + std::to_string(error));
            BeginToFail({.first = n, .last = LONG_MAX, .error = error});
            command();
            EndFailing();
            if (session.doc.Modificato == 0 || HasFatalFailure()) return n - 1;
            ExpectNothingLost(target);
            if (HasFailure()) return n;
        }
    }

    void ExpectSaved() const
    {
        EXPECT_EQ(BytesOf(target.toStdString()), whole);
        EXPECT_TRUE(dialogs.told.empty());
    }

    const std::string old = "quel che c'era prima";
    QString target;
    std::string whole;
    Surface picture;
};

// The folder and the file are opened, the file is written, synchronised, named, closed and put in
// its place.
constexpr long FewestOfACommand = 7;

TEST_F(FailingCommand, SaveFile)
{
    for (const int error : Errors) {
        const long calls = EachCallInTurn(error, [this] {
            dialogs.answers.push_back(true);
            SaveAs(target);
        });
        EXPECT_GE(calls, FewestOfACommand);
        ExpectSaved();
        // As after another effect.
        WriteBytes(target.toStdString(), old);
        session.doc.Modificato = 1;
        session.doc.notedCopy = session.doc.canvasCopy;
        session.form1.Enable(control::Salva, true);
    }
}

TEST_F(FailingCommand, SavingWhenTheProgramEnds)
{
    session.doc.NomeSalvato = target;
    const long calls = EachCallInTurn(ENOSPC, [this] {
        dialogs.answers.push_back(true);
        ClickEntry(entry::Esci);
    });
    EXPECT_GE(calls, FewestOfACommand);
    ExpectSaved();
    EXPECT_EQ(session.ending, 0);
}

TEST_F(FailingCommand, SavingUnderANewNameWhenTheProgramEnds)
{
    const long calls = EachCallInTurn(EIO, [this] {
        dialogs.answers = {true, true};
        dialogs.saveNames.push_back(target);
        ClickEntry(entry::Esci);
    });
    EXPECT_GE(calls, FewestOfACommand);
    ExpectSaved();
    EXPECT_EQ(session.ending, 0);
}

TEST_F(FailingCommand, SavingWhenTheCanvasIsClosed)
{
    const long calls = EachCallInTurn(EDQUOT, [this] {
        dialogs.answers = {true, true};
        dialogs.saveNames.push_back(target);
        session.form2.close();
    });
    EXPECT_GE(calls, FewestOfACommand);
    ExpectSaved();
    EXPECT_FALSE(session.form2.isVisible());
}

TEST_F(FailingCommand, SavingWhenThePreviewIsClosed)
{
    const long calls = EachCallInTurn(EIO, [this] {
        dialogs.answers = {true, true};
        dialogs.saveNames.push_back(target);
        session.form9.close();
    });
    EXPECT_GE(calls, FewestOfACommand);
    ExpectSaved();
}

TEST_F(FailingCommand, SavingWhenAnotherPictureIsOpened)
{
    const QString other = Made("seconda.bmp", Varied(4, 3));
    const long calls = EachCallInTurn(ENOSPC, [&] {
        dialogs.answers = {true, true};
        dialogs.saveNames.push_back(target);
        // Only asked for once the first picture is safe.
        dialogs.openNames = {std::nullopt};
        ClickEntry(entry::Apri);
    });
    EXPECT_GE(calls, FewestOfACommand);
    ExpectSaved();
}

TEST_F(FailingCommand, ALimitOnTheSizeOfFiles)
{
    const FileSizeLimit limit(1000);
    dialogs.answers.push_back(true);
    SaveAs(target);
    EXPECT_THAT(dialogs.told.at(0).text.toStdString(),
                HasSubstr("il file supera la dimensione consentita"));
    ExpectNothingLost(target);
}

TEST_F(FailingCommand, AFolderInWhichNothingMayBeWritten)
{
    const OrdinaryUser user{Root().toStdString()};
    chmod("altra", 0555);
    dialogs.answers.push_back(true);
    SaveAs(target);
    EXPECT_THAT(dialogs.told.at(0).text.toStdString(),
                HasSubstr("manca il permesso di scrivere nella cartella"));
    chmod("altra", 0755);
    ExpectNothingLost(target);
}

TEST_F(FailingCommand, AFolderThatHasVanished)
{
    const QString name = Path("sparita/figura.bmp");
    QDir().mkdir("sparita");
    SaveAs(name);
    EXPECT_EQ(session.doc.NomeSalvato, name);
    Apply("Specchio");
    picture = Canvas();
    QDir("sparita").removeRecursively();
    dialogs.answers.push_back(true);
    ClickEntry(entry::Esci);
    EXPECT_THAT(dialogs.told.at(0).text.toStdString(), HasSubstr("la cartella non esiste"));
    ExpectNothingLost(name);
}

TEST_F(FailingCommand, ANameThatIsTooLong)
{
    const QString name = Path("altra/" + QString(252, 'n') + ".bmp");
    SaveAs(name);
    EXPECT_THAT(dialogs.told.at(0).text.toStdString(), HasSubstr("il nome è troppo lungo"));
    ExpectNothingLost(name);
}

}  // namespace
}  // namespace pixano::test
