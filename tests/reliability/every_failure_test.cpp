// Every command, while each call of its file work fails in turn, alone and with all that follow:
// what the program shows and knows stays true, and nothing is lost.
#include "reliability/preload/failing_calls.h"
#include "reliability/true_state.h"

#include <climits>

#include <unistd.h>

namespace pixano::test {
namespace {

constexpr std::array DiskErrors{ENOSPC, EACCES, EIO, ENOENT, EMFILE};

/// Which calls of a command fail, and how.
struct Failure {
    long first;
    long last;
    int error;
};

/// The command, given where the user has come; `failure` while it runs.
class Trial {
  public:
    Trial(const GivenCommand& command, Scene scene) : command_(command)
    {
        if (scene == Scene::Killed) {
            Desk killed;
            Reach(Scene::Changed, killed);
            unsaved_ = killed.Canvas();
        }
        desk_.emplace();
        if (scene == Scene::Killed)
            MakeFiles(*desk_);
        else
            Reach(scene, *desk_);
        lastWhole_ = desk_->Canvas();
        command.before(*desk_);
    }

    /// How many calls there were.
    long Give(const Failure& failure)
    {
        // There are two folders for a copy: one failure alone leaves the other.
        const bool room = failure.first == failure.last;
        const Before before(*desk_, lastWhole_, room);
        if (command_.effect != nullptr) {
            EXPECT_NE(Made(*command_.effect, before.canvas), before.canvas);
        }
        desk_->dialogs.told.clear();
        BeginToFail({.first = failure.first,
                     .last = failure.last,
                     .error = failure.error,
                     .only = Everything});
        command_.give(*desk_);
        const long calls = CountedCalls();
        EndFailing();
        desk_->dialogs.answers.clear();
        desk_->dialogs.saveNames.clear();
        ExpectTrueState(command_, before, *desk_);
        if (unsaved_) {
            EXPECT_TRUE(IsKept(*unsaved_, before, *desk_) || desk_->Canvas() == *unsaved_);
        }
        ExpectTheRestWorks(*desk_);
        return calls;
    }

  private:
    const GivenCommand& command_;
    const Folders folders_;
    std::optional<Surface> unsaved_;
    std::optional<Desk> desk_;
    Surface lastWhole_;
};

std::vector<Failure> EachInTurn(long calls)
{
    std::vector<Failure> failures;
    for (long call = 1; call <= calls; ++call)
        for (const int error : DiskErrors)
            for (const long last : {call, LONG_MAX})
                failures.push_back({call, last, error});
    return failures;
}

/// Each command has its own part in the short form, so that together they try every place.
long Stride()
{
    constexpr long Short = 127;
    return qEnvironmentVariableIntValue("PIXANO_LONG") == 1 ? 1 : Short;
}

class EveryFailure : public testing::TestWithParam<GivenCommand> {
  protected:
    // Whatever waits, waits for ever: the signal ends the tests.
    void SetUp() override { alarm(1200); }
    void TearDown() override { alarm(0); }
};

TEST_P(EveryFailure, LeavesTheDocumentTrueAndNothingLost)
{
    long all = 0;
    long tried = 0;
    static long number = qEnvironmentVariableIntValue("PIXANO_SEED");
    const GivenCommand& command = GetParam();
    for (const Scene scene : command.scenes) {
        const long calls = Trial(command, scene).Give({0, 0, EIO});
        for (const Failure& failure : EachInTurn(calls)) {
            ++all;
            if (++number % Stride() != 0) continue;
            ++tried;
            SCOPED_TRACE("scene " + std::to_string(static_cast<int>(scene)) + ", call " +
                         std::to_string(failure.first) + " of " + std::to_string(calls) +
                         (failure.last == failure.first ? " alone" : " and all that follow") +
                         ", error " + std::to_string(failure.error));
            Trial(command, scene).Give(failure);
        }
    }
    RecordProperty("all", std::to_string(all));
    RecordProperty("tried", std::to_string(tried));
}

std::string NameOfCommand(const testing::TestParamInfo<GivenCommand>& info)
{
    std::string name = info.param.name;
    const auto isOther = [](char c) { return std::isalnum(c) == 0; };
    std::ranges::replace_if(name, isOther, '_');
    return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Each, EveryFailure, testing::ValuesIn(EveryCommand()), NameOfCommand);

}  // namespace
}  // namespace pixano::test
