// The one owner: the document, the canvas with its matrices, and the windows. Commands get it
// handed down; nothing in the program is global.
#pragma once

#include "canvas/work.h"
#include "document/document.h"
#include "panels/form10.h"
#include "windows/dialogs.h"
#include "windows/dropped_file.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/form4.h"
#include "windows/form9.h"
#include "windows/manners.h"
#include "windows/never_covered.h"

#include <QCoreApplication>

#include <functional>
#include <optional>

namespace pixano {

/// What the controls are and start.
struct Controls {
    MenuTable menu;
    PaletteTable palette;
};

struct Session {
    /// `dialogs` and the tables outlive the session; `timer` seeds the random numbers.
    Session(Dialogs& dialogBoxes, const Controls& controls, Timer timer = {});

    Dialogs& dialogs;
    Document doc;
    /// Where the program's own files lie.
    QString programFolder = QCoreApplication::applicationDirPath();

    Form1 form1;
    Form4 form4;
    ShownProgress progress;
    Work work;
    Form2 form2;
    Form9 form9;
    Form10 form10;
    /// Beside a picture its window is larger, and takes what is dropped there too.
    FileDrops drops{&form1, form2.viewport(), form9.viewport(), &form10};
    NeverCovered atHand{{&form1, &form10}, {&form2, &form9}};
    Manners manners;

    /// A command is running: whatever else the user starts meanwhile is ignored.
    bool busy = false;
    /// An effect is drawing: the canvas is unfinished, its snapshot holds the picture before.
    bool drawing = false;
    /// What the command that runs has to tell when it is done: Italian sentences.
    QStringList remarks;
    /// A run-time error is among them.
    bool failed = false;
    /// The picture that "Ripristina" goes forward to, where its file could not be written.
    std::optional<Surface> redoPicture;
    /// Done when a command has ended.
    std::function<void()> afterCommand = [] {};
    /// Done before the program ends, while its windows are still there.
    std::function<void()> beforeEnd = [] {};
    /// The status that the program ends with, once it is to end.
    std::optional<int> ending;
};

/// Ends the program with that status: closes all windows and leaves every event loop.
void EndProgram(Session& s, int status);

}  // namespace pixano
