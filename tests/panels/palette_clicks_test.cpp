// The palette in the running program, button by button, beside the batch tool and the menus.
#include "panels/asked.h"
#include "panels/expected_buttons.h"
#include "support/program.h"
#include "support/values.h"

#include <QProcess>
#include <QSlider>

namespace pixano::test {
namespace {

class PaletteInUse : public Program {
  protected:
    PaletteInUse() { Open("figura.bmp", Varied(61, 46)); }

    void Press(const char* name) { ClickButton(session.form10, name); }
    /// Presses the button; the slider window that it may open is confirmed as it stands.
    void PressAndConfirm(const ExpectedButton& button)
    {
        if (button.selector != 0)
            WhileAsked([](QWidget& window) { ClickButton(window, "Command1"); });
        Press(button.name);
    }

    /// What the real batch tool makes of the opened picture. The random numbers of both are seeded
    /// from a timer that reads 1, 2, 3, ..., the first time when their generators are made.
    static Values ByBatchTool(const QStringList& effects)
    {
        QStringList arguments{"--seme", "1", "-o", Path("atteso.bmp")};
        for (const QString& effect : effects)
            arguments << "-e" << effect;
        QProcess tool;
        tool.start(PIXANO_BATCH, arguments << Path("figura.bmp"));
        tool.waitForFinished();
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
        return ValuesOf(ReadPicture(Path("atteso.bmp").toStdString()).picture);
    }

    /// The entry that carries the check mark; 0 = none.
    int CheckedEntry() const
    {
        int checked = 0;
        for (int index = 1; index <= static_cast<int>(MenuEntries().size()); ++index) {
            if (!session.form1.Control(index - 1).isChecked()) continue;
            EXPECT_EQ(checked, 0) << "two entries are checked";
            checked = index;
        }
        return checked;
    }
};

class EffectButton : public PaletteInUse, public testing::WithParamInterface<ExpectedButton> {};

/// One whose effect a menu entry starts too.
class MenuEffectButton : public EffectButton {};
/// One whose effect has no menu entry.
class OwnEffectButton : public EffectButton {};

template <typename Condition>
std::vector<ExpectedButton> ButtonsThat(Condition condition)
{
    std::vector<ExpectedButton> buttons;
    std::ranges::copy_if(ExpectedButtons, std::back_inserter(buttons), condition);
    return buttons;
}

bool StartsEffect(const ExpectedButton& button)
{
    return *button.effect != '\0';
}

bool StartsMenuEffect(const ExpectedButton& button)
{
    return StartsEffect(button) && button.entry != 0;
}

bool StartsOwnEffect(const ExpectedButton& button)
{
    return StartsEffect(button) && button.entry == 0;
}

constexpr auto NameOfButton = [](const auto& suite) { return std::string(suite.param.name); };

INSTANTIATE_TEST_SUITE_P(Palette, EffectButton, testing::ValuesIn(ButtonsThat(StartsEffect)),
                         NameOfButton);
INSTANTIATE_TEST_SUITE_P(Palette, MenuEffectButton,
                         testing::ValuesIn(ButtonsThat(StartsMenuEffect)), NameOfButton);
INSTANTIATE_TEST_SUITE_P(Palette, OwnEffectButton, testing::ValuesIn(ButtonsThat(StartsOwnEffect)),
                         NameOfButton);

TEST_P(EffectButton, MakesThePictureThatTheBatchToolMakes)
{
    PressAndConfirm(GetParam());
    EXPECT_TRUE(ValuesOf(Canvas()) == ByBatchTool({GetParam().effect}));
    EXPECT_EQ(session.doc.Effetto, QString::fromUtf8(GetParam().effect));
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_TRUE(dialogs.told.empty());
}

TEST_P(EffectButton, MarksTheMenuEntryThatDoesTheSame)
{
    PressAndConfirm(GetParam());
    EXPECT_EQ(CheckedEntry(), GetParam().entry);
}

TEST_P(MenuEffectButton, DoesWhatItsMenuEntryDoes)
{
    ClickEntry(GetParam().entry);
    EXPECT_TRUE(ValuesOf(Canvas()) == ByBatchTool({GetParam().effect}));
    EXPECT_EQ(CheckedEntry(), GetParam().entry);
}

TEST_P(OwnEffectButton, LeavesTheCheckMarkWhereItIs)
{
    ClickEntry(32);
    PressAndConfirm(GetParam());
    EXPECT_EQ(CheckedEntry(), 32);
}

TEST_P(EffectButton, ShowsTheHourglassWhileItsEffectRuns)
{
    std::vector<Qt::CursorShape> shown;
    QObject::connect(&session.form4, &QWidget::windowTitleChanged,
                     [&] { shown.push_back(session.form10.cursor().shape()); });
    PressAndConfirm(GetParam());
    EXPECT_FALSE(shown.empty());
    EXPECT_EQ(std::ranges::count(shown, Qt::WaitCursor), static_cast<int>(shown.size()));
    EXPECT_EQ(session.form10.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(session.form4.isVisible());
}

TEST_F(PaletteInUse, RunsAllItsEffectsInOneStateAsTheBatchToolDoes)
{
    QStringList effects;
    for (const ExpectedButton& button : ButtonsThat(StartsEffect)) {
        PressAndConfirm(button);
        effects << QString::fromUtf8(button.effect);
    }
    EXPECT_TRUE(ValuesOf(Canvas()) == ByBatchTool(effects));
}

TEST_F(PaletteInUse, ComesWithThePictureAndGoesWithThePreview)
{
    EXPECT_TRUE(session.form10.isVisible());
    session.form9.close();
    EXPECT_FALSE(session.form10.isVisible());
}

TEST_F(PaletteInUse, ComesBackWithTheNextEffectWhenItWasClosed)
{
    session.form10.close();
    ClickEntry(32);
    EXPECT_TRUE(session.form10.isVisible());
}

// ---- history ----

class PaletteHistoryButtons : public PaletteInUse {
  protected:
    /// What can be used, in the menu and on the palette alike.
    History Usable()
    {
        EXPECT_EQ(PaletteHistory(), MenuHistory());
        return PaletteHistory();
    }
};

constexpr const char* Annulla = "SSCommand15";
constexpr const char* Originale = "SSCommand16";
constexpr const char* Ripristina = "SSCommand17";
constexpr const char* Capovolgi = "SSCommand14";
constexpr const char* Specchio = "SSCommand13";

TEST_F(PaletteHistoryButtons, IsOffAfterOpening)
{
    EXPECT_EQ(Usable(), (History{false, false, false}));
}

TEST_F(PaletteHistoryButtons, CannotUndoTheFirstEffectOnly)
{
    Press(Capovolgi);
    EXPECT_EQ(Usable(), (History{false, true, false}));
    Press(Specchio);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

TEST_F(PaletteHistoryButtons, GoesBackAndForward)
{
    Press(Capovolgi);
    const Values first = ValuesOf(Canvas());
    Press(Specchio);
    const Values second = ValuesOf(Canvas());
    Press(Annulla);
    EXPECT_TRUE(ValuesOf(Canvas()) == first);
    EXPECT_EQ(Usable(), (History{false, true, true}));
    Press(Ripristina);
    EXPECT_TRUE(ValuesOf(Canvas()) == second);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

TEST_F(PaletteHistoryButtons, GoesBackToThePictureAsItWasOpened)
{
    const Values opened = ValuesOf(Canvas());
    Press(Capovolgi);
    Press(Specchio);
    const Values second = ValuesOf(Canvas());
    Press(Originale);
    EXPECT_TRUE(ValuesOf(Canvas()) == opened);
    EXPECT_EQ(Usable(), (History{true, false, true}));
    Press(Ripristina);
    EXPECT_TRUE(ValuesOf(Canvas()) == second);
}

TEST_F(PaletteHistoryButtons, CannotGoForwardFromANewEffect)
{
    Press(Capovolgi);
    Press(Specchio);
    Press(Annulla);
    Press(Specchio);
    EXPECT_EQ(Usable(), (History{true, true, false}));
}

// ---- zoom ----

class PaletteZoom : public Program {
  protected:
    PaletteZoom() { Open("a.bmp", Varied(200, 100)); }

    void Press(const char* name) { ClickButton(session.form10, name); }
    QSize PreviewSize() { return session.form9.Image1().size(); }
};

TEST_F(PaletteZoom, EnlargesThePreviewByThreeTenths)
{
    Press("Command1");
    // 1.3 x 15.2 x 200 = 3952 twips and 1.3 x 16.4 x 100 = 2132 twips, 15 to a pixel.
    EXPECT_EQ(PreviewSize(), QSize(263, 142));
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
}

TEST_F(PaletteZoom, ReducesItDownToFourTenths)
{
    for (const char* scale : {"70%", "40%", "40%", "40%"}) {
        Press("Command2");
        EXPECT_EQ(PreviewCaption(), QString("a.bmp  (200 x 100) - ") + scale);
    }
    // 0.4 x 3040 = 1216 twips and 0.4 x 1640 = 656 twips.
    EXPECT_EQ(PreviewSize(), QSize(81, 44));
    Press("Command1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 70%");
}

TEST_F(PaletteZoom, HasNoUpperLimit)
{
    for (int i = 0; i < 20; ++i)
        Press("Command1");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 700%");
    // 7 x 3040 = 21280 twips and 7 x 1640 = 11480 twips.
    EXPECT_EQ(PreviewSize(), QSize(1419, 765));
}

TEST_F(PaletteZoom, LeavesThePictureAndItsHistoryAlone)
{
    const Values opened = ValuesOf(Canvas());
    Press("Command1");
    EXPECT_TRUE(ValuesOf(Canvas()) == opened);
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(CanvasCaption(), "a.bmp   200x100");
}

TEST_F(PaletteZoom, StaysForTheNextEffectAndGoesWithTheNextPicture)
{
    Press("Command1");
    Press("SSCommand14");
    EXPECT_EQ(PreviewCaption(), "a.bmp  (200 x 100) - 130%");
    dialogs.answers.push_back(false);
    Open("b.bmp", Varied(20, 10));
    EXPECT_EQ(PreviewCaption(), "b.bmp  (20 x 10) - 100%");
    EXPECT_EQ(session.doc.Zoom, 1);
}

}  // namespace
}  // namespace pixano::test
