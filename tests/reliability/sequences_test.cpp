// Long random series of commands, given to the real windows as a user gives them. After every
// command the program has to be as a plain model of it says.
#include "reliability/difference.h"
#include "reliability/player.h"
#include "support/desk.h"

#include <QElapsedTimer>
#include <QFile>

#include <iostream>

namespace pixano::test {
namespace {

/// One program after another, each with a seed of its own.
class OneSequence {
  public:
    explicit OneSequence(std::uint64_t seed) : player_(desk_.session, desk_.dialogs, seed) {}

    /// What went wrong and after which commands; empty when nothing did.
    std::string Played(int commands)
    {
        std::string played;
        for (int i = 0; i < commands && !player_.ended; ++i) {
            const Player::Command command = player_.Next();
            played += "\n  " + command.text;
            command.give();
            const std::string wrong = player_.ended ? Ending() : Wrong();
            if (!wrong.empty()) return wrong + played;
            ++given;
        }
        return {};
    }

    int given = 0;

  private:
    std::string Wrong()
    {
        std::string wrong = Difference(desk_.session, player_.model);
        if (desk_.dialogs.told.size() != player_.told) wrong += "; told " + Told();
        const bool answered = desk_.dialogs.answers.empty() && desk_.dialogs.openNames.empty() &&
                              desk_.dialogs.saveNames.empty();
        if (!answered) wrong += "; something was not asked";
        if (QFile::exists("elab.ser") && !player_.model.fileLeft) wrong += "; elab.ser is left";
        const bool noted = QFile::exists(folders_.Data("recupero.txt"));
        if (noted && !player_.model.modified) wrong += "; saved work is noted as unsaved";
        return wrong;
    }
    std::string Ending() const
    {
        if (desk_.session.ending != 1) return "the program did not end";
        if (desk_.dialogs.told.size() != player_.told) return "told " + Told();
        return {};
    }
    std::string Told() const
    {
        return desk_.dialogs.told.empty() ? "nothing"
                                          : desk_.dialogs.told.back().text.toStdString();
    }

    Folders folders_;
    StartedDesk desk_;
    Player player_;
};

TEST(Sequences, EveryCommandDoesWhatTheModelSays)
{
    const bool longForm = qEnvironmentVariableIntValue("PIXANO_LONG") == 1;
    const int sequences = longForm ? 10000 : 150;
    constexpr int Commands = 25;
    const int first = qEnvironmentVariableIntValue("PIXANO_SEED");
    int given = 0;
    for (int seed = first; seed < first + sequences; ++seed) {
        OneSequence sequence(static_cast<std::uint64_t>(seed));
        const std::string wrong = sequence.Played(Commands);
        ASSERT_EQ(wrong, "") << "PIXANO_SEED=" << seed;
        if (testing::Test::HasFailure()) FAIL() << "PIXANO_SEED=" << seed;
        given += sequence.given;
    }
    std::cout << sequences << " sequences, " << given << " commands\n";
}

}  // namespace
}  // namespace pixano::test
