#include "shell/events.h"

#include "document/closing.h"
#include "document/opening.h"
#include "document/pasting.h"
#include "shell/commands.h"
#include "shell/effect_frame.h"
#include "shell/run.h"
#include "shell/shut_down.h"

#include <functional>

namespace pixano {
namespace {

/// Lets a window close when its closing command went well.
std::function<bool()> AskingFirst(Session& s, const char* name, Fatal ends,
                                  bool (*unload)(Session&))
{
    return [&s, name, ends, unload] {
        bool closes = false;
        RunCommand(s, name, ends, [&] { closes = unload(s); });
        return closes;
    };
}

/// The menus and the palette stay at hand whatever window is in front.
void KeepCommandsAtHand(Session& s)
{
    for (QWidget* const window : std::initializer_list<QWidget*>{&s.form2, &s.form9, &s.form10})
        s.form1.ServeKeysIn(*window);
}

}  // namespace

void ConnectEvents(Session& s)
{
    KeepCommandsAtHand(s);
    const auto opensDropped = [&s](const QString& path) {
        RunCommand(s, "Apri", Fatal::None, [&] { OpenNamed(s, path); });
    };
    QObject::connect(&s.form1, &Form1::Clicked,
                     [&s](const MenuEntry& entry) { Start(s, entry.starts); });
    QObject::connect(&s.drops, &FileDrops::Dropped, opensDropped);
    QObject::connect(&s.form1, &Form1::Pasted,
                     [&s] { RunCommand(s, "Incolla", Fatal::None, [&] { OpenPasted(s); }); });
    QObject::connect(&s.form4, &Form4::Closed,
                     [&s] { RunCommand(s, "Anteprima", Fatal::None, [&] { Form4_Unload(s); }); });
    s.form1.mayClose = AskingFirst(s, "Esci", Fatal::All, Form_Unload);
    s.form2.mayClose = AskingFirst(s, "Chiudi", Fatal::None, Form2_Unload);
    s.form9.mayClose = AskingFirst(s, "Chiudi", Fatal::None, Form9_Unload);
    // The wheel does what the palette's two magnifiers do.
    QObject::connect(&s.form9, &Form9::Zoomed, [&s](bool larger) {
        s.form10.findChild<QPushButton*>(larger ? "Command1" : "Command2")->click();
    });
    QObject::connect(&s.form10, &Form10::Pressed,
                     [&s](const PaletteButton& button) { Start(s, button.starts); });
}

}  // namespace pixano
