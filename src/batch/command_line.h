// What the command line asks for. Knows the effects' names, opens no file.
#pragma once

#include "batch/step.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pixano::batch {

/// The name that means standard input or standard output.
inline constexpr std::string_view StandardStream = "-";

enum class Task { Pictures, Sheet, Help, Version, List };

struct CommandLine {
    Task task = Task::Pictures;
    std::vector<Step> steps;
    std::optional<std::uint64_t> seed;
    std::optional<std::string> output;  ///< the file of the only result
    std::optional<std::string> folder;  ///< the folder of all results
    std::optional<unsigned> jobs;  ///< pictures at once; as many as there are cores if not given
    std::optional<int> within;     ///< the longest side that a picture may have; larger ones shrink
    std::optional<int> quality;    ///< of JPEG results, 1 to 100
    bool quiet = false;
    std::vector<std::string> inputs;
};

/// `arguments`: without the program's name, UTF-8. Throws WrongCommandLine.
CommandLine ParseCommandLine(std::span<const std::string_view> arguments);

}  // namespace pixano::batch
