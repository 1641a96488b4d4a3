// Every command of the windowed program, as a user gives it. Knows not what fails meanwhile.
#pragma once

#include "support/desk.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pixano::test {

/// How far the user has come when the command is given.
enum class Scene {
    Opened,   ///< a picture is open, as it was read
    Changed,  ///< it has two effects; nothing is saved
    Killed    ///< so it was when the last run was killed; the program is not started yet
};

struct GivenCommand {
    std::string name;
    std::function<void(Desk&)> give;
    std::vector<Scene> scenes{Scene::Changed};
    /// What is done before, when nothing fails yet.
    std::function<void(Desk&)> before = [](Desk&) {};
    /// What it runs, if it is an effect.
    const Effect* effect = nullptr;
    /// What the canvas is called after it, whatever fails.
    std::optional<QString> caption = std::nullopt;
    /// The canvas is half drawn when it is given.
    bool halfDrawn = false;
    /// As many as there are commands in it.
    std::size_t messages = 1;
};

inline void PrintTo(const GivenCommand& command, std::ostream* out)
{
    *out << command.name;
}

std::vector<GivenCommand> EveryCommand();

/// Large enough for every effect, and of even sides.
inline constexpr Size EnoughForAll{64, 48};

/// The picture files of the folder, and the strengths beside them.
void MakeFiles(Desk& desk);

/// What the effect makes of the picture in a program that has just begun.
Surface Made(const Effect& effect, const Surface& picture);

/// Brings the user so far.
void Reach(Scene scene, Desk& desk);

}  // namespace pixano::test
