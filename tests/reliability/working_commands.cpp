#include "reliability/working_commands.h"

#include "shell/commands.h"

#include <QPushButton>
#include <QSlider>

namespace pixano::test {
namespace {

void AnswerSlider()
{
    QTimer::singleShot(0, [] {
        auto* const window = QApplication::activeModalWidget();
        // A window that could not read its strength is gone by now.
        if (window == nullptr) return;
        window->findChild<QSlider*>("Slider1")->setValue(700);
        window->findChild<QPushButton*>("Command1")->click();
        // The strengths could not be kept: the user thinks better of it.
        if (window->isVisible()) window->findChild<QPushButton*>("Command2")->click();
    });
}

void Redo(Busy& b)
{
    b.desk.ClickEntry(entry::Orig);
    b.desk.dialogs.told.clear();
    b.desk.ClickEntry(entry::Redo);
}

void OpenAnother(Busy& b)
{
    b.desk.dialogs.answers.push_back(false);
    b.desk.Open(Folders::Path("b.bmp"));
}

void AskStrength(Busy& b)
{
    AnswerSlider();
    b.desk.session.form10.findChild<QPushButton*>("SSCommand6")->click();
}

void End(Busy& b)
{
    b.desk.dialogs.answers.push_back(false);
    b.desk.ClickEntry(entry::Esci);
}

}  // namespace

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"effect",
         [](Busy& b) { b.desk.Apply("Specchio"); },
         {},
         {"temp.bml", "elab.ser", "elabor.tmp"}},
        {"turn", [](Busy& b) { b.desk.Apply("Rotazione +90°"); }, {}, {"temp.bml", "elabor.tmp"}},
        {"undo",
         [](Busy& b) { b.desk.ClickEntry(entry::Undo); },
         {"temp.bml"},
         {"temp2.bml"},
         true},
        {"redo", Redo, {}, {"temp2.bml"}},
        {"original", [](Busy& b) { b.desk.ClickEntry(entry::Orig); }, {}, {"temp2.bml"}, true},
        {"open", OpenAnother, {}, {"percors.dat"}, true},
        {"zoom", [](Busy& b) { b.desk.Button("Command1").click(); }, {}, {"elabor.tmp"}},
        {"slider", AskStrength, {"valori.tip"}, {"temp.bml", "elab.ser", "elabor.tmp"}},
        {"end", End, {}, {"temp.bml", "temp2.bml", "elabor.tmp"}},
    };
    return commands;
}

bool InDataFolder(const std::string& file)
{
    return file.starts_with("temp") || file == "recupero.txt";
}

void ExpectWhatTheCommandMeans(const Command& command, Busy& busy, bool denied)
{
    const std::string name = command.name;
    const Surface& canvas = busy.desk.Canvas();
    if (name == "undo") {
        EXPECT_EQ(canvas, denied ? busy.second : busy.first);
    }
    if (name == "redo") {
        EXPECT_EQ(canvas, busy.second);
    }
    if (name == "original") {
        EXPECT_EQ(canvas, OpenedPicture());
    }
    if (name == "open") {
        EXPECT_EQ(canvas, Surface(3, 2, 0xFF));
    }
    if (name == "zoom" || name == "end") {
        EXPECT_EQ(canvas, busy.second);
    }
    if (name == "effect" && !denied) {
        EXPECT_NE(canvas, busy.second);
    }
    if (name == "end")
        EXPECT_EQ(busy.desk.session.ending, std::optional(denied ? 1 : 0));
    else if (name != "slider") {
        EXPECT_FALSE(busy.desk.session.ending);
    }
}

}  // namespace pixano::test
