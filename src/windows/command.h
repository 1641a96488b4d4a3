// What a control starts when it is used. Knows what the commands are called, not what they do.
#pragma once

#include "effects/effect.h"

#include <variant>

namespace pixano {

struct Session;

/// A command of the program that is no effect.
struct Command {
    const char* name;  ///< what it is called in messages, UTF-8
    void (*run)(Session&);
    Fatal fatal = Fatal::None;  ///< the run-time errors in it that end the program

    friend bool operator==(const Command&, const Command&) = default;
};

/// Nothing (a separator, a menu), a command, or an effect, which is never nullptr.
using Starts = std::variant<std::monostate, Command, const Effect*>;

}  // namespace pixano
