// What the start after a run that was killed says, word for word, and how the work comes back.
#include "document/after_a_kill.h"
#include "document/recovery_note.h"

namespace pixano::test {
namespace {

const QString Unexpectedly =
    "L'ultima volta Pixano si è chiuso in modo imprevisto con modifiche non salvate";

class BringingBack : public AfterAKill {
  protected:
    /// The only thing told: that the work is lost, and why; the rest says what is kept.
    QString ToldAfter(const QString& beginning)
    {
        if (dialogs.told.size() != 1) {
            ADD_FAILURE() << "told " << dialogs.told.size() << " things";
            return {};
        }
        const ShownBox& box = dialogs.told.front();
        EXPECT_EQ(box.icon, BoxIcon::Exclamation);
        EXPECT_EQ(box.title, "Attenzione!");
        EXPECT_EQ(box.text.left(beginning.size()), beginning);
        return box.text.mid(beginning.size());
    }
    QStringList Aside() const { return QDir(Data("")).entryList({"recupero-*"}); }
    /// The rest of the box names all that was put aside, a line each.
    void ExpectAsideNamedIn(const QString& rest)
    {
        const QString beginning = ".\nQuel che ne resta è qui:\n«";
        EXPECT_TRUE(rest.startsWith(beginning) && rest.endsWith("».")) << rest.toStdString();
        QStringList named = rest.mid(beginning.size()).chopped(2).split("»\n«");
        named.sort();
        QStringList there;
        for (const QString& name : Aside())
            there += Data(name);
        there.sort();
        EXPECT_EQ(named, there);
    }
    /// Bitmaps by their letters, everything else as it is.
    std::set<std::string> ContentsAside() const
    {
        std::set<std::string> contents;
        for (const QString& name : Aside()) {
            const std::string bytes = Bytes(Data(name));
            contents.insert(bytes.starts_with("BM") ? Kept(Data(name)).front() : bytes);
        }
        return contents;
    }
};

TEST_F(BringingBack, TakesTheWorkUpWhereItWas)
{
    Kill();
    dialogs.answers = {true};
    Offer();
    EXPECT_EQ(dialogs.asked, (std::vector<ShownBox>{
                                 {BoxIcon::Exclamation, "Avviso!",
                                  Unexpectedly + " all'immagine «a.bmp».\nVuoi recuperarle?"}}));
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    EXPECT_EQ(PreviewLetters(), (Letters{"~ab"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (3 x 1) - 100%");
    EXPECT_TRUE(session.form9.Image1().Stretch());
    EXPECT_TRUE(session.form2.isVisible() && session.form9.isVisible());
    EXPECT_EQ(MenuHistory(), (History{false, true, false}));
    EXPECT_EQ(PaletteHistory(), (History{false, true, false}));
    EXPECT_TRUE(Enabled(entry::Salva) && Enabled(37));
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.FileAperto, Path("a.bmp"));
    EXPECT_TRUE(dialogs.told.empty());
    ASSERT_TRUE(ReadRecoveryNote());
    EXPECT_EQ(ReadRecoveryNote()->copy, Path("elabor.tmp"));
    EXPECT_EQ(Kept(Path("elabor.tmp")), (Letters{"~ab"}));
}

TEST_F(BringingBack, LetsTheWorkGoOn)
{
    Kill();
    dialogs.answers = {true};
    Offer();
    ClickEntry(entry::Orig);
    EXPECT_EQ(CanvasLetters(), (Letters{"abc"}));
    EXPECT_FALSE(RecoveryNoteThere());
    ClickEntry(entry::Redo);
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    EXPECT_EQ(CanvasCaption(), "a.bmp   3x1");
    // The same picture chosen again is open already.
    dialogs.answers = {false};
    Open(Path("a.bmp"));
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    dialogs.answers = {false};
    EXPECT_TRUE(session.form1.close());
    EXPECT_FALSE(Exists(Path("elabor.tmp")));
    // The user's own picture is none that the program keeps for itself.
    EXPECT_TRUE(Exists(Path("a.bmp")));
}

TEST_F(BringingBack, MovesItsCopyIntoTheFolderOfTheNextStart)
{
    Kill();
    const QString before = Path("elabor.tmp");
    QDir().mkdir("altra");
    QDir::setCurrent("altra");
    dialogs.answers = {true};
    Offer();
    EXPECT_EQ(CanvasLetters(), (Letters{"~ab"}));
    EXPECT_FALSE(Exists(before));
    EXPECT_EQ(Kept(Path("elabor.tmp")), (Letters{"~ab"}));
    ASSERT_TRUE(ReadRecoveryNote());
    EXPECT_EQ(ReadRecoveryNote()->copy, Path("elabor.tmp"));
    QDir::setCurrent("..");
}

TEST_F(BringingBack, NamesTheFileOfWhatIsNotWanted)
{
    Kill();
    dialogs.answers = {false};
    Offer();
    ASSERT_EQ(Aside().size(), 1);
    EXPECT_EQ(dialogs.told,
              (std::vector<ShownBox>{{BoxIcon::None, "Avviso!",
                                      "L'immagine resta nel file «" + Data(Aside()[0]) + "»."}}));
    EXPECT_EQ(Kept(Data(Aside()[0])), (Letters{"~ab"}));
    EXPECT_FALSE(Exists(Path("elabor.tmp")));
    EXPECT_FALSE(RecoveryNoteThere());
    EXPECT_FALSE(session.doc.open);
}

TEST_F(BringingBack, NamesTheFileInWhichAnErrorHasKeptTheSame)
{
    Kill();
    SaveBitmap(Drawn({"cba"}), Data("lavoro-2.bmp").toStdString());
    SaveBitmap(Drawn({"~ab"}), Data("lavoro-3.bmp").toStdString());
    dialogs.answers = {false};
    Offer();
    EXPECT_EQ(Aside(), QStringList());
    EXPECT_EQ(dialogs.told.front().text,
              "L'immagine resta nel file «" + Data("lavoro-3.bmp") + "».");
    EXPECT_FALSE(Exists(Path("elabor.tmp")) || RecoveryNoteThere());
}

TEST_F(BringingBack, KeepsAllThatIsLeftWhereTheCopyIsNoLongerThePicture)
{
    Kill("abua");
    const std::string lost = "solo testo";
    Write("elabor.tmp", lost);
    Offer();
    ExpectAsideNamedIn(ToldAfter(Unexpectedly +
                                 " all'immagine «a.bmp», ma non è possibile recuperarle.\n"
                                 "Impossibile leggere «" +
                                 Path("elabor.tmp") + "»: non è un'immagine BMP, JPEG o GIF"));
    // The copy itself, the picture before the last effect, and the one that was taken back.
    EXPECT_EQ(ContentsAside(), (std::set<std::string>{lost, "cba", "~ab"}));
}

TEST_F(BringingBack, KeepsThePictureThatWasTakenBackWhereTheOneBeforeItIsAnother)
{
    Kill("abu");
    SaveBitmap(Drawn({"xy"}), Data("temp.bml").toStdString());
    Offer();
    ExpectAsideNamedIn(ToldAfter(
        Unexpectedly + " all'immagine «a.bmp», ma non è possibile recuperarle.\nIl file «" +
        Data("temp.bml") + "» non è più quello di allora"));
    EXPECT_EQ(ContentsAside(), (std::set<std::string>{"xy", "~ab"}));
}

TEST_F(BringingBack, TellsOfANoteThatIsNotWhole)
{
    Kill();
    const std::string whole = Bytes(Data("recupero.txt"));
    std::string nowhere = whole;
    nowhere.replace(0, whole.find('\n'), "elabor.tmp");
    std::string nameless = whole;
    nameless.replace(whole.find('\n') + 1, Path("a.bmp").size(), "/figure/");
    for (const std::string& note :
         {std::string(), whole.substr(0, whole.size() - 1), whole.substr(0, whole.size() - 2),
          whole + "1\n", whole.substr(0, whole.find("3\n")) + "0\n1\n",
          whole.substr(0, whole.find("3\n")) + "3\n-1\n", nowhere, nameless}) {
        Write(Data("recupero.txt"), note);
        EXPECT_FALSE(ReadRecoveryNote()) << note;
    }
    Write(Data("elabor.tmp"), "una copia");
    Offer();
    EXPECT_EQ(ContentsAside(), (std::set<std::string>{"~ab", "cba", "una copia", nameless}));
    ExpectAsideNamedIn(ToldAfter(Unexpectedly + ", ma non è possibile recuperarle.\nIl file «" +
                                 Data("recupero.txt") + "» non si può leggere"));
}

TEST_F(BringingBack, NotesTheCopyAgainForChangesAfterASave)
{
    Start();
    Open("a.bmp", Drawn({"abc"}));
    Apply("Specchio");
    SaveAs(Path("s.bmp"));
    EXPECT_FALSE(RecoveryNoteThere());
    Apply("Specchio");
    EXPECT_TRUE(ReadRecoveryNote());
}

}  // namespace
}  // namespace pixano::test
