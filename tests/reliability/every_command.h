// Every command of the windowed program, as a user gives it. Knows not what fails meanwhile.
#pragma once

#include "reliability/scenes.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pixano::test {

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

}  // namespace pixano::test
