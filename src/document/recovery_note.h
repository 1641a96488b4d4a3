// The note that tells which working picture holds the canvas. Knows no window and no picture.
#pragma once

#include <QString>

#include <optional>

namespace pixano {

struct RecoveryNote {
    QString copy;     ///< path of the copy of the canvas
    QString picture;  ///< path of the picture that it was made from
    int width = 0;    ///< of the copy, in pixels
    int height = 0;
};

/// Where the note lies.
QString RecoveryNotePath();

/// Whether there is something in the note's place.
bool RecoveryNoteThere();

/// The note; nothing when it is not there, not whole or not to be read.
std::optional<RecoveryNote> ReadRecoveryNote();

/// Replaces the note; when that fails the old one stays. Throws Fault FileAccess.
void WriteRecoveryNote(const RecoveryNote& note);

/// Takes the note away if it is there and can be deleted.
void RemoveRecoveryNote();

}  // namespace pixano
