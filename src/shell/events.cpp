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

}  // namespace

void ConnectEvents(Session& s)
{
    const auto opensDropped = [&s](const QString& path) {
        RunCommand(s, "Apri", Fatal::None, [&] { OpenNamed(s, path); });
    };
    QObject::connect(&s.form1, &Form1::Clicked,
                     [&s](const MenuEntry& entry) { Start(s, entry.starts); });
    QObject::connect(&s.form1, &Form1::Dropped, opensDropped);
    QObject::connect(&s.form2, &Form2::Dropped, opensDropped);
    QObject::connect(&s.form1, &Form1::Pasted,
                     [&s] { RunCommand(s, "Incolla", Fatal::None, [&] { OpenPasted(s); }); });
    QObject::connect(&s.form4, &Form4::Closed,
                     [&s] { RunCommand(s, "Anteprima", Fatal::None, [&] { Form4_Unload(s); }); });
    s.form1.mayClose = AskingFirst(s, "Esci", Fatal::All, Form_Unload);
    s.form2.mayClose = AskingFirst(s, "Chiudi", Fatal::None, Form2_Unload);
    s.form9.mayClose = AskingFirst(s, "Chiudi", Fatal::None, Form9_Unload);
    QObject::connect(&s.form10, &Form10::Pressed,
                     [&s](const PaletteButton& button) { Start(s, button.starts); });
}

}  // namespace pixano
