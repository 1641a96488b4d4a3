// Strengths that are outside the range, no numbers, or in a "valori.tip" that cannot be used.
#include "panels/strengths_run.h"

namespace pixano::test {
namespace {

TEST_F(StrengthsInUse, OutsideTheRangeBecomeTheEnd)
{
    Ship("valori.tip", "1\r\n2\r\n12010\r\n4\r\n-5\r\n");
    PressVetro([](QWidget& window) {
        EXPECT_EQ(LabelIn(window), "10000");
        Confirm(window);
    });
    EXPECT_TRUE(CanvasIs(VetroOf(10000)));
    EXPECT_TRUE(dialogs.told.empty());
    Ask("SSCommand23", [](QWidget& window) { EXPECT_EQ(LabelIn(window), "0"); });
    EXPECT_EQ(session.work.Valori.at(5), 0);
    EXPECT_EQ(session.work.Valori.at(3), 12010) << "only the strength in use is changed";
}

TEST_F(StrengthsInUse, WithoutANumberAreNothing)
{
    Ship("valori.tip", "uno\r\ndue\r\ntre\r\nquattro\r\ncinque\r\n");
    PressVetro([](QWidget& window) { EXPECT_EQ(LabelIn(window), "0"); });
    EXPECT_EQ(session.work.Valori, Strengths{});
}

TEST_F(StrengthsInUse, ThatCannotBeWrittenHoldForThisTime)
{
    QDir().mkdir("valori.tip");
    PressVetro([](QWidget& window) {
        Confirm(window);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(session.doc.Effetto, "Vetro");
    EXPECT_EQ(session.doc.Modificato, 1);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_EQ(dialogs.told.front().text, "Impossibile salvare «" + Path("valori.tip") +
                                             "»: è una cartella. Questa forza non sarà ricordata.");
    PressVetro(Cancel);
    EXPECT_EQ(session.doc.NumEffetti, 1) << "the confirmation must not count again";
}

// ---- a file that is missing or too short ends the program ----

class UnreadableStrengths : public StrengthsInUse {
  protected:
    /// Presses "Vetro"; the window closes by itself.
    void PressVetroInVain() { ClickButton(session.form10, "SSCommand6"); }

    /// The only bitmap that was kept in the data folder.
    QString KeptWork() const
    {
        const QStringList kept = QDir(Data("")).entryList({"lavoro-*.bmp"});
        return kept.size() == 1 ? Data(kept.front()) : QString();
    }
};

TEST_F(UnreadableStrengths, EndTheProgramWithItsMessage)
{
    QFile::remove(Beside("valori.tip"));
    PressVetroInVain();
    ASSERT_EQ(dialogs.told.size(), 1U);
    const ShownBox& box = dialogs.told.front();
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_EQ(box.title, "Attenzione!");
    EXPECT_TRUE(box.text.contains("«Vetro»")) << box;
    EXPECT_TRUE(box.text.contains(Beside("valori.tip"))) << box;
    EXPECT_TRUE(box.text.endsWith("Il programma termina.")) << box;
    EXPECT_EQ(session.ending, 1);
    EXPECT_TRUE(KeptWork().isEmpty()) << "nothing was unsaved";
}

TEST_F(UnreadableStrengths, KeepUnsavedWork)
{
    ClickEntry(32);
    const Values unsaved = ValuesOf(Canvas());
    Ship("valori.tip", "1\r\n2\r\n3\r\n4\r\n");
    PressVetroInVain();
    EXPECT_EQ(session.ending, 1);
    ASSERT_FALSE(KeptWork().isEmpty());
    EXPECT_TRUE(ValuesOf(ReadPicture(KeptWork().toStdString()).picture) == unsaved);
    ASSERT_EQ(dialogs.told.size(), 1U);
    EXPECT_TRUE(dialogs.told.front().text.contains(KeptWork())) << dialogs.told.front();
}

TEST_F(UnreadableStrengths, EndTheProgramAtAResizeToo)
{
    PressVetro([this](QWidget& window) {
        Ship("valori.tip", "");
        window.resize(window.width() + 50, window.height());
        EXPECT_EQ(session.ending, 1);
    });
    EXPECT_THAT(dialogs.told, testing::SizeIs(1));
    EXPECT_EQ(session.doc.NumEffetti, 0);
}

TEST_F(UnreadableStrengths, LeaveNoWindowBehind)
{
    Ship("valori.tip", "");
    PressVetroInVain();
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

}  // namespace
}  // namespace pixano::test
