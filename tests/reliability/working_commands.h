// The commands that use working files: which files each needs, and what it has to come to.
#pragma once

#include "reliability/busy.h"

#include <set>
#include <string>
#include <vector>

#include <unistd.h>

namespace pixano::test {

struct Command {
    const char* name;
    void (*give)(Busy& busy);
    /// The files that it cannot do without when they are not what they were.
    std::set<std::string> reads;
    /// The files whose place it needs, which only a folder denies it.
    std::set<std::string> writes;
    /// Errors are passed over.
    bool silent = false;
};

const std::vector<Command>& Commands();

/// Whether it lies in the data folder, and not in the current one.
bool InDataFolder(const std::string& file);

/// What the canvas shows and how the program stands after it; `denied`: it could not be done.
void ExpectWhatTheCommandMeans(const Command& command, Busy& busy, bool denied);

/// Whatever waits, waits for ever: the signal ends the tests.
template <typename Base = testing::Test>
class Watched : public Base {
  protected:
    void SetUp() override { alarm(60); }
    void TearDown() override { alarm(0); }
};

}  // namespace pixano::test
