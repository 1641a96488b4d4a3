#include "shell/events.h"

#include "document/canvas_copy.h"
#include "document/closing.h"
#include "document/opening.h"
#include "document/pasting.h"
#include "document/places.h"
#include "shell/commands.h"
#include "shell/effect_frame.h"
#include "shell/run.h"
#include "shell/shut_down.h"

#include <functional>

namespace pixano {
namespace {

/// Lets a window close when its closing command went well.
std::function<bool()> AskingFirst(Session& s, const char* name, FaultEnds ends,
                                  bool (*unload)(Session&))
{
    return [&s, name, ends, unload] {
        bool closes = false;
        Run(s, name, ends, [&] { closes = unload(s); });
        return closes;
    };
}

}  // namespace

void ConnectEvents(Session& s)
{
    const auto opensDropped = [&s](const QString& path) {
        Run(s, "Apri", FaultEnds::Command, [&] { OpenNamed(s, path); });
    };
    QObject::connect(&s.form1, &Form1::Clicked,
                     [&s](const MenuEntry& entry) { Start(s, entry.starts); });
    QObject::connect(&s.form1, &Form1::Dropped, opensDropped);
    QObject::connect(&s.form2, &Form2::Dropped, opensDropped);
    QObject::connect(&s.form1, &Form1::Pasted,
                     [&s] { Run(s, "Incolla", FaultEnds::Command, [&] { OpenPasted(s); }); });
    QObject::connect(&s.form4, &Form4::Closed, [&s] {
        Run(s, "Anteprima", FaultEnds::Command, [&] {
            Form4_Unload(s);
            NoteCanvasCopy(s, file::PreviewCopy);
        });
    });
    s.form1.mayClose = AskingFirst(s, "Esci", FaultEnds::Program, Form_Unload);
    s.form2.mayClose = AskingFirst(s, "Chiudi", FaultEnds::Command, Form2_Unload);
    s.form9.mayClose = AskingFirst(s, "Chiudi", FaultEnds::Command, Form9_Unload);
    QObject::connect(&s.form10, &Form10::Pressed,
                     [&s](const PaletteButton& button) { Start(s, button.starts); });
}

}  // namespace pixano
