#include "reliability/every_command.h"

#include "shell/program.h"

#include <QClipboard>
#include <QSlider>

namespace pixano::test {
namespace {

/// `button`: the one that is pressed, "OK" or "Annulla".
void AnswerSlider(const char* button = "Command1")
{
    QTimer::singleShot(0, [button] {
        auto* const window = QApplication::activeModalWidget();
        // One that could not read its strength is gone by now.
        if (window == nullptr) return;
        window->findChild<QSlider*>("Slider1")->setValue(StrengthForAll);
        window->findChild<QPushButton*>(button)->click();
    });
}

/// Draws one pixel and then fails, as when the pixel file ends too soon.
void Break(Work& w)
{
    w.ShowProgress();
    w.Avanzamento(1);
    w.Picture1.PSet(0, 0, 0x123456);
    throw Fault(FaultKind::InputPastEnd);
}

void LeaveHalfDrawn(Desk& desk)
{
    desk.RunInFrame({.name = "Rotto", .run = Break, .family = Family::Geometry});
    desk.dialogs.told.clear();
}

/// Runs the program until it waits for the user.
void StartAnew(Desk& desk, const QStringList& arguments)
{
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        if (QWidget* const modal = QApplication::activeModalWidget())
            ClickAway(*modal);
        else if (!desk.session.busy)
            QApplication::exit(0);
    });
    user.start(0);
    try {
        RunAsOnlyInstance(desk.session, OptionsFrom(QStringList{"pixano"} + arguments));
    } catch (const Fault& fault) {
        desk.dialogs.Tell(BoxIcon::Critical, title::Warning, QString::fromUtf8(fault.what()) + '.');
        desk.session.ending = 1;
    }
}

std::vector<GivenCommand> EffectCommands()
{
    const std::vector both{Scene::Opened, Scene::Changed};
    std::vector<GivenCommand> commands;
    for (const auto& [index, name] : EffectEntries)
        commands.push_back({.name = std::string("menu: ") + name,
                            .give = [entry = index](Desk& d) { d.Entry(entry).trigger(); },
                            .scenes = both,
                            .effect = FindEffect(name)});
    for (const PaletteButton& button : PaletteButtons()) {
        const Effect* const effect = EffectIn(button.starts);
        if (effect == nullptr) continue;
        const char* const name = button.name;
        commands.push_back({.name = "palette: " + std::string(effect->name),
                            .give =
                                [name, slider = effect->selector != 0](Desk& d) {
                                    if (slider) AnswerSlider();
                                    d.Button(name).click();
                                },
                            .scenes = both,
                            .effect = effect});
    }
    return commands;
}

std::vector<GivenCommand> HistoryCommands()
{
    const auto undone = [](Desk& d) { d.ClickEntry(entry::Undo); };
    const auto original = [](Desk& d) { d.ClickEntry(entry::Orig); };
    const auto saved = [](Desk& d) { d.SaveAs(Folders::Path("salvata.bmp")); };
    const QString effect = "Capovolgi   64x48";
    const QString picture = "a.bmp   64x48";
    return {
        {.name = "undo", .give = undone, .caption = effect},
        {.name = "undo after original", .give = undone, .before = original, .caption = effect},
        {.name = "undo when saved", .give = undone, .before = saved, .caption = effect},
        {.name = "undo by the palette",
         .give = [](Desk& d) { d.Button("SSCommand15").click(); },
         .caption = effect},
        {.name = "original", .give = original, .caption = picture},
        {.name = "original after undo", .give = original, .before = undone, .caption = picture},
        {.name = "original when saved", .give = original, .before = saved, .caption = picture},
        {.name = "redo", .give = [](Desk& d) { d.Entry(entry::Redo).trigger(); }, .before = undone},
        {.name = "redo after original",
         .give = [](Desk& d) { d.Entry(entry::Redo).trigger(); },
         .before = original},
    };
}

/// Gives the command, and that answer to whether the picture is to be saved.
std::function<void(Desk&)> Answering(bool save, const std::function<void(Desk&)>& command)
{
    return [save, command](Desk& d) {
        d.dialogs.answers.push_back(save);
        if (save) {
            // Where nobody can look whether the file is there, it is not replaced unasked.
            d.dialogs.answers.push_back(true);
            d.dialogs.saveNames.push_back(Folders::Path("salvata.bmp"));
        }
        command(d);
    };
}

std::vector<GivenCommand> OpeningCommands()
{
    const auto opens = [](Desk& d) { d.Open(Folders::Path("b.bmp")); };
    const auto drops = [](Desk& d) { emit d.session.drops.Dropped(Folders::Path("b.bmp")); };
    const auto pastes = [](Desk& d) { emit d.session.form1.Pasted(); };
    const auto copies = [](Desk&) {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::red);
        QApplication::clipboard()->setImage(image);
    };
    return {
        {.name = "open", .give = opens, .scenes = {Scene::Started, Scene::Opened}},
        {.name = "open, yes", .give = Answering(true, opens)},
        {.name = "open, no", .give = Answering(false, opens)},
        {.name = "drop, no", .give = Answering(false, drops)},
        {.name = "paste",
         .give = pastes,
         .scenes = {Scene::Started, Scene::Opened},
         .before = copies},
        {.name = "paste, no", .give = Answering(false, pastes), .before = copies},
    };
}

std::vector<GivenCommand> SavingAndClosingCommands()
{
    const auto ends = [](Desk& d) { d.Entry(entry::Esci).trigger(); };
    return {
        {.name = "save",
         .give =
             [](Desk& d) {
                 d.dialogs.answers.push_back(true);
                 d.SaveAs(Folders::Path("salvata.bmp"));
             }},
        {.name = "close the canvas, yes",
         .give = Answering(true, [](Desk& d) { d.session.form2.close(); })},
        {.name = "close the preview, no",
         .give = Answering(false, [](Desk& d) { d.session.form9.close(); })},
        {.name = "close the palette", .give = [](Desk& d) { d.session.form10.close(); }},
        {.name = "close the progress window",
         .give = [](Desk& d) { d.session.form4.close(); },
         .scenes = {Scene::Opened, Scene::Changed},
         .before = LeaveHalfDrawn,
         .halfDrawn = true},
        {.name = "slider, cancelled",
         .give =
             [](Desk& d) {
                 AnswerSlider("Command2");
                 d.Button("SSCommand6").click();
             },
         .scenes = {Scene::Opened, Scene::Changed}},
        {.name = "zoom", .give = [](Desk& d) { d.Button("Command1").click(); }},
        {.name = "end", .give = ends, .scenes = {Scene::Opened}},
        {.name = "end, yes", .give = Answering(true, ends)},
        {.name = "end, no", .give = Answering(false, ends)},
    };
}

std::vector<GivenCommand> StartCommands()
{
    const auto answering = [](bool wanted, const QStringList& arguments) {
        return [wanted, arguments](Desk& d) {
            d.dialogs.answers.push_back(wanted);
            StartAnew(d, arguments);
            d.dialogs.answers.clear();
        };
    };
    return {
        {.name = "start, yes", .give = answering(true, {}), .scenes = {Scene::Killed}},
        {.name = "start, no", .give = answering(false, {}), .scenes = {Scene::Killed}},
        {.name = "start with a picture, no",
         .give = answering(false, {"b.bmp"}),
         .scenes = {Scene::Killed},
         .messages = 2},
    };
}

}  // namespace

std::vector<GivenCommand> EveryCommand()
{
    std::vector<GivenCommand> all;
    for (const auto& some : {EffectCommands(), HistoryCommands(), OpeningCommands(),
                             SavingAndClosingCommands(), StartCommands()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

}  // namespace pixano::test
