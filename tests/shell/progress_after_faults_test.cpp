// What the progress window shows through effects that end well and effects that fail.
#include "shell/spy_effect.h"
#include "support/hindrances.h"
#include "support/program.h"

namespace pixano::test {
namespace {

class ProgressAfterFaults : public Program {
  protected:
    ProgressAfterFaults() { Open("a.bmp", Varied(64, 48)); }
    ~ProgressAfterFaults() override { SpyAction() = nullptr; }
};

/// Looks at the progress window while it comes and goes.
class ProgressSeen : public QObject {
  public:
    explicit ProgressSeen(Form4& window) : window_(window) { window.installEventFilter(this); }

    float atShow = -1;
    float atHide = -1;
    QStringList titles;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Show) atShow = window_.Bar();
        if (event->type() == QEvent::Hide) atHide = window_.Bar();
        if (event->type() == QEvent::WindowTitleChange) titles += window_.windowTitle();
        return false;
    }

  private:
    Form4& window_;
};

TEST_F(ProgressAfterFaults, IngrSinistroShowsTheBarOfItsCaptureAndTheNextWindowIsNew)
{
    const ProgressSeen seen(session.form4);
    Apply("Ingr. Sinistro");
    EXPECT_EQ(seen.atShow, 400);
    EXPECT_EQ(seen.atHide, 400);
    EXPECT_TRUE(seen.titles.contains("Elab. Ingr. Sinistro"));
    EXPECT_EQ(session.form4.Bar(), 0);
    EXPECT_EQ(session.form4.windowTitle(), "");
    Apply("Specchio");
    EXPECT_EQ(seen.atShow, 0);
}

TEST_F(ProgressAfterFaults, NoTitleShowsTwoPercentagesAfterAFaultInACapture)
{
    const ProgressSeen seen(session.form4);
    Apply("Specchio");
    {
        // The snapshot fits; the pixels as text do not.
        const FileSizeLimit disk(64 * 48 * 3 + 54);
        Apply("Ingr. Sinistro");
    }
    EXPECT_EQ(dialogs.told.size(), 1U);
    Apply("Artistico 1");
    for (const QString& title : seen.titles)
        EXPECT_LE(title.count('('), 1) << title.toStdString();
}

TEST_F(ProgressAfterFaults, AWindowThatAFaultLeftOpenKeepsItsTitleThroughTheNextEffect)
{
    const auto begin = [](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
    };
    Effect other = Spy();
    other.name = "Altra";
    SpyAction() = [&](Work& w) {
        begin(w);
        throw Fault(FaultKind::InputPastEnd);
    };
    RunInFrame(Spy());
    SpyAction() = [&](Work& w) {
        begin(w);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia  (0%)");
    };
    RunInFrame(other);
    SpyAction() = [&](Work& w) {
        begin(w);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Altra  (0%)");
    };
    RunInFrame(other);
}

}  // namespace
}  // namespace pixano::test
