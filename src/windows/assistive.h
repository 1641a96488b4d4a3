// What assistive tools are told of windows and pictures that the toolkit takes for plain widgets.
#pragma once

namespace pixano {

/// From now on the program's windows are told as windows, with their titles, and its pictures as
/// pictures.
void TellAssistiveTools();

}  // namespace pixano
