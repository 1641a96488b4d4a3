// The batch tool: effects on files of pictures, without windows.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace pixano::batch {

/// What the tool ends with.
enum ExitStatus { AllDone = 0, SomethingFailed = 1, CommandWrong = 2 };

/// Runs the tool. `arguments`: without the program's name; `ownFolder`: where "valori.tip" lies.
int RunBatch(std::span<const std::string_view> arguments, const std::string& ownFolder);

}  // namespace pixano::batch
