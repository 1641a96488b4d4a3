// An effect of a test's own, to look at the program from inside the effect's frame.
#pragma once

#include "shell/controls.h"

#include <functional>
#include <vector>

namespace pixano::test {

/// What the spy does in place of painting. Set it before the spy is run.
inline std::function<void(Work&)>& SpyAction()
{
    static std::function<void(Work&)> action;
    return action;
}

/// "Spia": runs the action. Fill in what the frame is to do differently.
inline Effect& Spy()
{
    static Effect spy{
        .name = "Spia", .run = [](Work& w) { SpyAction()(w); }, .family = Family::Geometry};
    return spy;
}

/// The program's controls and one entry more, which starts the spy.
inline Controls ControlsWithSpy()
{
    static const std::vector<MenuEntry> menu = [] {
        std::vector<MenuEntry> entries(MenuEntries().begin(), MenuEntries().end());
        entries.push_back({"Spia", "Spia", "Effetti", Needs::Picture, &Spy()});
        return entries;
    }();
    return {menu, PaletteButtons()};
}
inline const int SpyEntry = static_cast<int>(MenuEntries().size()) + 1;

}  // namespace pixano::test
