// The history after every kind of series of commands: what is shown, what can be used next, what
// counts as unsaved. One program goes through all of them, each with a picture of its own, so
// nothing of a series may be left for the next one.
#include "support/program.h"

namespace pixano::test {
namespace {

/// One letter a command: a "Specchio", b "Capovolgi", u "Annulla", o "Originale", r "Ripristina",
/// s saves as s.bmp. The picture is "abc".
struct Series {
    const char* commands;
    const char* picture;
    const char* caption;  ///< of the canvas, before the size; "" = the opened file's name
    History history;
    bool unsaved;
    const char* saved = "";  ///< the name that the next question would have
};

// clang-format off
const std::vector<Series> AllSeries{
    {"",        "abc", "",          {false, false, false}, false},
    {"a",       "cba", "Specchio",  {false, true,  false}, true},
    {"ab",      "~ab", "Capovolgi", {true,  true,  false}, true},
    {"aba",     "ba~", "Specchio",  {true,  true,  false}, true},
    // Back and forward.
    {"abu",     "cba", "Capovolgi", {false, true,  true},  true},
    {"abur",    "~ab", "Capovolgi", {true,  true,  false}, true},
    {"aburu",   "cba", "Capovolgi", {false, true,  true},  true},
    {"abua",    "abc", "Specchio",  {true,  true,  false}, true},
    {"abuau",   "cba", "Specchio",  {false, true,  true},  true},
    {"abuaur",  "abc", "Specchio",  {true,  true,  false}, true},
    // To the picture as it was opened, from everywhere.
    {"ao",      "abc", "",          {false, false, true},  false},
    {"aor",     "cba", "Specchio",  {false, true,  false}, true},
    {"aob",     "~cb", "Capovolgi", {false, true,  false}, true},
    {"aoba",    "bc~", "Specchio",  {true,  true,  false}, true},
    {"abo",     "abc", "",          {true,  false, true},  false},
    {"abor",    "~ab", "Capovolgi", {true,  true,  false}, true},
    {"aboro",   "abc", "",          {true,  false, true},  false},
    {"abou",    "cba", "Capovolgi", {false, true,  true},  true},
    {"abour",   "~ab", "Capovolgi", {true,  true,  false}, true},
    {"abouo",   "abc", "",          {true,  false, true},  false},
    {"abouor",  "~ab", "Capovolgi", {true,  true,  false}, true},
    {"abuo",    "abc", "",          {true,  false, true},  false},
    {"abuor",   "~ab", "Capovolgi", {true,  true,  false}, true},
    {"abuou",   "cba", "Capovolgi", {false, true,  true},  true},
    {"abuaor",  "abc", "Specchio",  {true,  true,  false}, true},
    {"abobau",  "~cb", "Specchio",  {false, true,  true},  true},
    {"abobaur", "bc~", "Specchio",  {true,  true,  false}, true},
    // With a save somewhere: what was saved is the canvas of that moment.
    {"as",      "cba", "Specchio",  {false, true,  false}, false, "s.bmp"},
    {"asb",     "~ab", "Capovolgi", {true,  true,  false}, true,  "s.bmp"},
    {"abs",     "~ab", "Capovolgi", {true,  true,  false}, false, "s.bmp"},
    {"absu",    "cba", "Capovolgi", {false, true,  true},  true},
    {"absur",   "~ab", "Capovolgi", {true,  true,  false}, true},
    {"abus",    "cba", "Capovolgi", {false, true,  true},  false, "s.bmp"},
    {"abusr",   "~ab", "Capovolgi", {true,  true,  false}, true,  "s.bmp"},
    {"asbo",    "abc", "",          {true,  false, true},  false},
    {"abors",   "~ab", "Capovolgi", {true,  true,  false}, false, "s.bmp"},
    // Where all is saved the picture is loaded as if it had just been opened.
    {"aso",     "abc", "",          {false, false, false}, false},
    {"abso",    "abc", "",          {false, false, false}, false},
    {"abuso",   "abc", "",          {false, false, false}, false},
    {"absob",   "~cb", "Capovolgi", {false, true,  false}, true},
};
// clang-format on

class HistoryStates : public Program {
  protected:
    /// Opens the picture under another name each time; unsaved changes are thrown away.
    void OpenAnew()
    {
        dialogs.answers.clear();
        if (session.doc.Modificato == 1) dialogs.answers.push_back(false);
        opened_ = QString("%1.bmp").arg(++count_);
        Open(opened_, Drawn({"abc"}));
    }
    void Give(char command, bool byPalette)
    {
        QFile::remove(Path("s.bmp"));
        switch (command) {
        case 'a':
            return Apply("Specchio");
        case 'b':
            return Apply("Capovolgi");
        case 's':
            return SaveAs(Path("s.bmp"));
        case 'u':
            return byPalette ? Press("SSCommand15") : ClickEntry(entry::Undo);
        case 'o':
            return byPalette ? Press("SSCommand16") : ClickEntry(entry::Orig);
        default:
            return byPalette ? Press("SSCommand17") : ClickEntry(entry::Redo);
        }
    }
    void Press(const char* name)
    {
        EXPECT_TRUE(Button(name).isEnabled()) << name;
        Button(name).click();
    }
    void ExpectState(const Series& series)
    {
        EXPECT_EQ(CanvasLetters(), (Letters{series.picture}));
        EXPECT_EQ(PreviewLetters(), (Letters{series.picture}));
        const QString caption = *series.caption == '\0' ? opened_ : QString(series.caption);
        EXPECT_EQ(CanvasCaption(), caption + "   3x1");
        EXPECT_EQ(MenuHistory(), series.history);
        EXPECT_EQ(PaletteHistory(), series.history);
        EXPECT_EQ(session.doc.Modificato, series.unsaved ? 1 : 0);
        EXPECT_EQ(Enabled(entry::Salva), series.unsaved);
        EXPECT_EQ(session.doc.NomeSalvato, *series.saved == '\0' ? "" : Path(series.saved));
        EXPECT_TRUE(dialogs.told.empty());
    }
    /// A program without a picture, whatever there was before.
    void ExpectAllOff()
    {
        for (const int index : {3, 5, 37, 57, 58, 59, 60})
            EXPECT_FALSE(Enabled(index)) << index;
        EXPECT_EQ(PaletteHistory(), (History{false, false, false}));
        EXPECT_EQ(session.doc.Modificato, 0);
        EXPECT_FALSE(session.form2.isVisible());
        EXPECT_FALSE(session.form9.isVisible());
        EXPECT_FALSE(session.form10.isVisible());
    }

  private:
    int count_ = 0;
    QString opened_;
};

TEST_F(HistoryStates, FollowEverySeriesOfCommands)
{
    for (const bool byPalette : {false, true})
        for (const Series& series : AllSeries) {
            SCOPED_TRACE(std::string(series.commands) + (byPalette ? " by the palette" : ""));
            OpenAnew();
            for (const char* command = series.commands; *command != '\0'; ++command)
                Give(*command, byPalette);
            ExpectState(series);
        }
}

TEST_F(HistoryStates, AreAllOffOnceThePictureIsClosed)
{
    for (const Series& series : AllSeries) {
        SCOPED_TRACE(series.commands);
        OpenAnew();
        for (const char* command = series.commands; *command != '\0'; ++command)
            Give(*command, false);
        if (series.unsaved) dialogs.answers.push_back(false);
        EXPECT_TRUE(session.form2.close());
        ExpectAllOff();
    }
}

}  // namespace
}  // namespace pixano::test
