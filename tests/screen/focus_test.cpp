// Where the keyboard is after a command, and what becomes of windows that were minimised.
#include "panels/form11.h"
#include "panels/form6.h"
#include "screen/desktop.h"
#include "support/modal_steps.h"
#include "windows/screen_dialogs.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QPushButton>
#include <QToolTip>
#include <QWindow>

#include <set>

namespace pixano::test {
namespace {

using Focus = Desktop;

TEST_F(Focus, EndsWithTheMainWindowAfterTheFirstOpeningAndEveryOther)
{
    for (const int side : {300, 200}) {
        OpenSized(side, side);
        EXPECT_TRUE(Stays([this] { return IsActive(session.form1); })) << side;
        EXPECT_TRUE(IsAbove(session.form1, session.form2));
        EXPECT_TRUE(IsAbove(session.form10, session.form2));
    }
}

// Not even for a moment: what is typed meanwhile would go astray.
TEST_F(Focus, IsGivenToNoWindowThatOnlyAppears)
{
    std::set<QString> focused;
    const auto seen =
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, [&](const QWindow* now) {
            for (const QWidget* const window : Companions())
                if (now != nullptr && now == window->windowHandle())
                    focused.insert(window->objectName());
        });
    OpenSized(300, 200);
    EXPECT_TRUE(Stays([this] { return IsActive(session.form1); }));
    QObject::disconnect(seen);
    EXPECT_TRUE(focused.empty() || RaisesWithFocus()) << focused.begin()->toStdString();
}

TEST_F(Focus, IsNotNeededForThePaletteToTellWhatItsSignsMean)
{
    OpenSized(300, 200);
    EXPECT_TRUE(Stays([this] { return IsActive(session.form1); }));
    const QPushButton& sign = Button("SSCommand7");
    const QPoint place = sign.mapToGlobal(sign.rect().center());
    Do(QString("mousemove %1 %2 mousemove_relative 2 2").arg(place.x()).arg(place.y()));
    EXPECT_TRUE(ComesToHold([&] { return QToolTip::text() == sign.toolTip(); }));
}

TEST_F(Focus, LeavesABlankWithNothingToDoOnceItsButtonIsOff)
{
    struct Press {
        const char* button;
        History before;
        History after;
    };
    OpenSized(30, 20);
    for (const auto& [button, before, after] :
         {Press{"SSCommand15", {true, true, false}, {false, true, true}},
          Press{"SSCommand16", {false, true, true}, {true, false, true}},
          Press{"SSCommand17", {true, false, true}, {true, true, false}}})
        for (const char* const key : {"space", "Return"}) {
            // Two effects, and from there to where the button is on.
            Apply("Specchio");
            Apply("Capovolgi");
            if (before.ripristina) ClickEntry(before.originale ? entry::Undo : entry::Orig);
            ASSERT_EQ(PaletteHistory(), before) << button;
            Activate(session.form10);
            Button(button).setFocus();
            Do(QString("key ") + key);
            EXPECT_TRUE(ComesToHold([&, last = after] { return PaletteHistory() == last; }))
                << button;
            const Surface canvas = Canvas();
            Do(QString("key %1 %1").arg(key));
            EXPECT_TRUE(Stays([&, last = after] {
                return PaletteHistory() == last && Canvas() == canvas;
            })) << button;
        }
}

class Minimised : public Desktop {
  protected:
    void ExpectBack(QWidget& window)
    {
        EXPECT_TRUE(Stays([&] { return !IsIconic(window) && window.windowHandle()->isExposed(); }))
            << window.objectName().toStdString();
        EXPECT_FALSE(window.isMinimized());
    }
};

TEST_F(Minimised, WindowsComeBackWhenAPictureIsOpened)
{
    OpenSized(300, 200);
    Minimise(session.form1);
    for (QWidget* const window : Companions())
        Minimise(*window);
    Open("b.bmp", Varied(40, 30));
    ExpectBack(session.form1);
    for (QWidget* const window : Companions())
        ExpectBack(*window);
    EXPECT_TRUE(Stays([this] { return IsActive(session.form1); }));
}

TEST_F(Minimised, ACanvasThatComesBackLeavesThePreviewInFront)
{
    OpenSized(200, 100);
    Minimise(session.form2);
    OpenSized(2000, 2000);
    ExpectBack(session.form2);
    EXPECT_TRUE(StaysOnceAnswered(
        [this] { return IsAbove(session.form9, session.form2) && IsActive(session.form1); }));
}

TEST_F(Minimised, WindowsComeBackWhateverShowsThePreview)
{
    OpenSized(300, 200);
    struct Showing {
        const char* name;
        std::function<void()> give;
    };
    const Showing commands[]{{"an effect", [this] { Apply("Specchio"); }},
                             {"smaller", [this] { Button("Command2").click(); }},
                             {"larger", [this] { Button("Command1").click(); }}};
    for (const auto& [name, give] : commands) {
        SCOPED_TRACE(name);
        Minimise(session.form9);
        Minimise(session.form10);
        give();
        ExpectBack(session.form9);
        ExpectBack(session.form10);
        EXPECT_TRUE(Stays([this] { return IsActive(session.form10); }));
    }
}

TEST_F(Minimised, WindowsComeBackWhenAPictureIsPasted)
{
    OpenSized(300, 200);
    for (QWidget* const window : Companions())
        Minimise(*window);
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(image);
    Activate(session.form1);
    Do("key ctrl+v");
    EXPECT_TRUE(ComesToHold([this] { return CanvasCaption().endsWith("40x30"); }));
    for (QWidget* const window : Companions())
        ExpectBack(*window);
    EXPECT_TRUE(Stays([this] { return IsActive(session.form1); }));
}

// The palette was there all the time.
TEST_F(Minimised, APreviewThatComesBackTakesNoFocus)
{
    OpenSized(300, 200);
    for (const char* const effect : {"Specchio", "Capovolgi", "Specchio"}) {
        Minimise(session.form9);
        Activate(session.form1);
        Apply(effect);
        ExpectBack(session.form9);
        EXPECT_TRUE(Stays([this] { return IsActive(session.form10); })) << effect;
    }
}

// Behind it no other window takes a click.
TEST_F(Minimised, AWindowThatWaitsForAnAnswerComesBack)
{
    OpenSized(300, 200);
    ScreenDialogs real;
    std::vector<std::function<void()>> questions = Questions(real);
    questions.emplace_back([&] { Form11("Vetro", session.form10).exec(); });
    questions.emplace_back([&] { Form6().exec(); });
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const ModalSteps steps({[&](QDialog& dialog) {
            EXPECT_TRUE(ComesToHold([&] { return IsActive(dialog); })) << i;
            Do("windowminimize " + Id(dialog));
            EXPECT_TRUE(Stays([&] { return !IsIconic(dialog) && IsActive(dialog); })) << i;
        }});
        questions[i]();
    }
    EXPECT_FALSE(IsIconic(session.form1));
}

}  // namespace
}  // namespace pixano::test
