// Every command, while each call of its file work fails in turn, alone and with all that follow:
// what the program shows and knows stays true, and nothing is lost.
#include "reliability/preload/failing_calls.h"
#include "reliability/true_state.h"

#include <climits>

#include <unistd.h>

namespace pixano::test {
namespace {

/// Which calls of a command fail, and how.
struct Failure {
    long first;
    long last;
    int error;
    unsigned only = Everything;
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
                     .only = failure.only});
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

/// What runs short, how it is told, and one failure in how many is tried in the short form. Each
/// command has its own part of them, so that together they try every place.
struct Kind {
    unsigned calls;
    std::vector<int> errors;
    long stride;
};

const Kind Disk{Everything, {ENOSPC, EACCES, EIO, ENOENT, EMFILE}, 251};
const Kind Memory{Allocates, {ENOMEM}, 5};

std::vector<Failure> EachInTurn(const Kind& kind, long calls)
{
    std::vector<Failure> failures;
    for (long call = 1; call <= calls; ++call)
        for (const int error : kind.errors)
            for (const long last : {call, LONG_MAX})
                failures.push_back({call, last, error, kind.calls});
    return failures;
}

bool IsLong()
{
    return qEnvironmentVariableIntValue("PIXANO_LONG") == 1;
}

class EveryFailure : public testing::TestWithParam<GivenCommand> {
  protected:
    // Whatever waits, waits for ever: the signal ends the tests.
    void SetUp() override { alarm(1200); }
    void TearDown() override { alarm(0); }

    static void Try(const Kind& kind)
    {
        long all = 0;
        long tried = 0;
        static long number = qEnvironmentVariableIntValue("PIXANO_SEED");
        const GivenCommand& command = GetParam();
        for (const Scene scene : command.scenes) {
            const long calls = Trial(command, scene).Give({0, 0, EIO, kind.calls});
            for (const Failure& failure : EachInTurn(kind, calls)) {
                ++all;
                if (!IsLong() && ++number % kind.stride != 0) continue;
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
};

TEST_P(EveryFailure, OfFileWorkLeavesTheDocumentTrueAndNothingLost)
{
    Try(Disk);
}

TEST_P(EveryFailure, OfMemoryLeavesTheDocumentTrueAndNothingLost)
{
    // Effects take theirs alike.
    static int effects = 0;
    const bool effect = GetParam().effect != nullptr;
    if (IsLong() || !effect || ++effects % 10 == 0) Try(Memory);
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
