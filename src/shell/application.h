// What the toolkit has to know of the program before any window is made.
#pragma once

class QApplication;

namespace pixano {

/// What the application needs whatever its windows are: its name, Italian for the toolkit's own
/// texts, the toolkit's own dialogs.
void PrepareApplication(QApplication& application);

}  // namespace pixano
