// How far a user has come, and the files that he has: where a command is given.
#pragma once

#include "support/desk.h"

namespace pixano::test {

/// How far the user has come when the command is given.
enum class Scene {
    Started,  ///< nothing is open
    Opened,   ///< a picture is open, as it was read
    Changed,  ///< it has two effects; nothing is saved
    Killed    ///< so it was when the last run was killed; the program is not started yet
};

/// Large enough for every effect, and of even sides.
inline constexpr Size EnoughForAll{64, 48};
/// A strength at which every effect changes the picture.
inline constexpr int StrengthForAll = 9000;

/// The picture files of the folder, and the strengths beside them.
void MakeFiles(Desk& desk);

/// What the effect makes of the picture in a program that has just begun.
Surface Made(const Effect& effect, const Surface& picture);

/// Brings the user so far.
void Reach(Scene scene, Desk& desk);

}  // namespace pixano::test
