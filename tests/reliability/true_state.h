// Whether the program shows and knows what is, and has lost nothing, whatever has failed under the
// last command.
#pragma once

#include "reliability/every_command.h"

namespace pixano::test {

/// What there was before the command.
struct Before {
    Before(Desk& desk, const Surface& lastWhole, bool roomForACopy);

    /// What the canvas showed when it was last the work of a whole effect, and what it shows.
    Surface whole;
    Surface canvas;
    QString caption;
    int modified;
    /// One of the two folders takes a copy of the canvas, whatever fails: no message is an excuse.
    bool room;
};

/// After the command: marks, note, messages, menu, palette, pointer, captions and progress window
/// agree with the canvas.
void ExpectTrueState(const GivenCommand& command, const Before& before, Desk& desk);

/// What follows works, and shows what it has to: an effect, a step back, one forward, and the
/// picture as it was opened.
void ExpectTheRestWorks(Desk& desk);

/// The picture that a run which was killed had not saved is offered, or a message has named it.
bool IsKept(const Surface& picture, const Before& before, const Desk& desk);

}  // namespace pixano::test
