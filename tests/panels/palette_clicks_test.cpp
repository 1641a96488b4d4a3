// The palette's effects in the running program, each beside the batch tool and the menus.
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

    /// Presses the button; the slider window that it may open is confirmed as it stands.
    void PressAndConfirm(const ExpectedButton& button)
    {
        if (button.selector != 0)
            WhileAsked([](QWidget& window) { ClickButton(window, "Command1"); });
        ClickButton(session.form10, button.name);
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

}  // namespace
}  // namespace pixano::test
