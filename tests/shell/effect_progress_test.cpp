// The progress window around every effect, and the order of the last steps as it goes.
#include "shell/spied_frame.h"

#include <set>
#include <string_view>

namespace pixano::test {
namespace {

TEST_F(Frame, ShowsTheProgressWindowCaptionedWithTheEffect)
{
    RunSpy([&](Work& w) {
        w.ShowProgress();
        EXPECT_TRUE(session.form4.isVisible());
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia");
        EXPECT_EQ(BarValue(), 0);
    });
    EXPECT_FALSE(session.form4.isVisible());
}

TEST_F(Frame, TellsTheProgressInQuarterPercents)
{
    Open("b.bmp", Varied(2, 3));
    RunSpy([&](Work& w) {
        w.ShowProgress();
        const std::vector<std::pair<int, QString>> expected{
            {0, "Elab. Spia  (0%)"},     {133, "Elab. Spia  (33%)"},  {266, "Elab. Spia  (66%)"},
            {400, "Elab. Spia  (100%)"}, {400, "Elab. Spia  (100%)"},
        };
        for (int n = 0; n <= 4; ++n) {
            w.Avanzamento(n);
            EXPECT_EQ(BarValue(), expected[static_cast<std::size_t>(n)].first) << n;
            EXPECT_EQ(session.form4.windowTitle(), expected[static_cast<std::size_t>(n)].second);
        }
    });
}

TEST_F(Frame, OverwritesACaptionThatChangedBetweenTwoSteps)
{
    RunSpy([&](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
        session.form4.setWindowTitle("altro");
        w.Avanzamento(1);
        EXPECT_EQ(session.form4.windowTitle(), "Elab. Spia  (100%)");
    });
}

TEST_F(Frame, TakesEachEffectsOwnCaptionAfresh)
{
    RunSpy([](Work& w) {
        w.ShowProgress();
        w.Avanzamento(0);
    });
    Effect other = Spy();
    other.name = "Altra";
    RunSpy(
        [&](Work& w) {
            w.ShowProgress();
            w.Avanzamento(0);
            EXPECT_EQ(session.form4.windowTitle(), "Elab. Altra  (0%)");
        },
        other);
}

/// Looks at the document in the moment when the progress window goes.
class LastSteps : public QObject, public Frame, public testing::WithParamInterface<const Effect*> {
  protected:
    LastSteps() { session.form4.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Hide) return false;
        atUnload = session.doc.Modificato;
        pixelsAtUnload = Exists(Path("elab.ser"));
        captionAtUnload = CanvasCaption();
        return false;
    }

    int atUnload = -1;
    bool pixelsAtUnload = true;
    QString captionAtUnload;
};

TEST_P(LastSteps, MarkTheChangeBeforeOrAfterTheProgressWindowGoes)
{
    static const std::set<std::string_view> before{"Rifl. Vert. Sinistro",
                                                   "Rifl. Vert. Destro",
                                                   "Rifl.o Oriz. Superiore",
                                                   "Rifl. Oriz. Inferiore",
                                                   "Ingr. Top",
                                                   "Ingr. Bottom",
                                                   "Ingr. Sinistro",
                                                   "Ingr. Destro",
                                                   "Ingr. Top Sinistro",
                                                   "Ingr. Top Destro",
                                                   "Ingr. Bottom Sinistro",
                                                   "Ingr. Bottom Destro",
                                                   "Ingr. Centro",
                                                   "Multifoto",
                                                   "Mini Foto Rnd",
                                                   "Mix Verticale",
                                                   "Mix Orizzontale",
                                                   "Mix Multifoto"};
    const Effect& effect = *GetParam();
    Open("b.bmp", Varied(64, 48));
    session.work.Valori.fill(2500);
    RunInFrame(effect);
    EXPECT_EQ(atUnload, before.contains(effect.name) ? 1 : 0);
    EXPECT_FALSE(pixelsAtUnload);
    EXPECT_EQ(captionAtUnload, "b.bmp   64x48");
    EXPECT_EQ(session.doc.Modificato, 1);
    const std::string caption = effect.name == "Mini Foto Rnd" ? "b.bmp" : std::string(effect.name);
    EXPECT_EQ(CanvasCaption().toStdString(), caption + "   64x48");
}

INSTANTIATE_TEST_SUITE_P(Catalogue, LastSteps, testing::ValuesIn([] {
                             std::vector<const Effect*> effects;
                             for (const Effect& effect : Effects)
                                 effects.push_back(&effect);
                             return effects;
                         }()));

}  // namespace
}  // namespace pixano::test
