// The program killed at random moments and at every moment that matters: the next start has to
// bring back what was unsaved, and nothing else.
#include "reliability/child.h"
#include "reliability/knowledge.h"
#include "reliability/preload/failing_calls.h"
#include "support/desk.h"

#include <array>
#include <csignal>
#include <iostream>
#include <random>
#include <thread>

namespace pixano::test {
namespace {

const std::string Victim = PIXANO_VICTIM;

/// Lets the victim live for a while: so many lines and then so many microseconds.
std::vector<std::string> LinesUntilKilled(Child& victim, int signal, int count, int microseconds)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        const std::optional<std::string> line = victim.Line();
        if (!line) break;
        lines.push_back(*line);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    victim.Signal(signal);
    for (const std::string& line : victim.Rest())
        lines.push_back(line);
    return lines;
}

std::string Told(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += "\n  " + line;
    return text;
}

/// Every file that was saved is a whole picture that was on the canvas.
void ExpectSavedFilesWhole(const Knowledge& knowledge)
{
    for (const QString& name : QDir().entryList({"salvata*.bmp"}))
        EXPECT_TRUE(knowledge.seen.contains(ChecksumOfFile(name))) << name.toStdString();
}

/// Kills one victim after the other in the same folders; each sees what the one before left.
int KillChain(int kills, unsigned seed)
{
    const Folders folders;
    Knowledge knowledge(folders.Data(""));
    std::mt19937 random(seed);
    const auto number = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    int killed = 0;
    for (int i = 0; i < kills; ++i) {
        const unsigned own = seed * 1000 + static_cast<unsigned>(i);
        // One in eight ends as programs should.
        const bool mayEnd = number(7) == 0;
        Child victim({Victim, std::to_string(own), mayEnd ? "9" : "-1"});
        // Most are killed; a session that is logged out, or a terminal closed, is no better.
        const int signal =
            std::array{SIGKILL, SIGKILL, SIGTERM, SIGHUP}.at(static_cast<std::size_t>(number(3)));
        const auto lines =
            LinesUntilKilled(victim, signal, mayEnd ? 1000 : number(60), number(2500));
        const int end = victim.Wait();
        if (end == -signal) ++killed;
        EXPECT_TRUE(end == -signal || end == 0 || end == 1) << end;
        EXPECT_EQ(knowledge.Learn(lines, end), "")
            << "chain " << seed << ", victim " << i << Told(lines);
        ExpectSavedFilesWhole(knowledge);
        if (testing::Test::HasFailure()) break;
    }
    std::cout << "chain " << seed << ": " << killed << " killed, " << knowledge.offers
              << " offers, " << knowledge.brought << " brought back, " << knowledge.putAside
              << " put aside\n";
    return killed;
}

TEST(Crash, NothingIsLostWhenKilledAtRandom)
{
    const bool longForm = qEnvironmentVariableIntValue("PIXANO_LONG") == 1;
    constexpr int KillsPerChain = 30;
    const int chains = longForm ? 20 : 1;
    const int first = qEnvironmentVariableIntValue("PIXANO_SEED");
    int killed = 0;
    for (int chain = first; chain < first + chains && !HasFailure(); ++chain)
        killed += KillChain(KillsPerChain, static_cast<unsigned>(chain));
    std::cout << killed << " kills\n";
}

/// A victim that does the same every time, killed just before its n-th change of a file.
struct KilledAt {
    std::vector<std::string> lines;
    int end = 0;
};

KilledAt KillAtChange(unsigned seed, int commands, int n)
{
    constexpr unsigned Change = Opens | Writes | Names | Deletes;
    const std::string at = std::to_string(n);
    Child victim({Victim, std::to_string(seed), std::to_string(commands)},
                 {{"LD_LIBRARY_PATH", FAILING_CALLS_FOLDER},
                  {"LD_PRELOAD", FAILING_CALLS},
                  {"PIXANO_FAILING_CALLS", at + " " + at + " 0 " + std::to_string(Change)}});
    KilledAt killed;
    killed.lines = victim.Rest();
    killed.end = victim.Wait();
    return killed;
}

/// The number of the first change before which the victim is no longer killed: it has ended.
int KillAtEveryChange(unsigned seed, int step)
{
    constexpr int Commands = 14;
    int kills = 0;
    for (int n = 1;; n += step) {
        const Folders folders;
        Knowledge knowledge(folders.Data(""));
        const KilledAt killed = KillAtChange(seed, Commands, n);
        EXPECT_EQ(knowledge.Learn(killed.lines, killed.end), "") << Told(killed.lines);
        ExpectSavedFilesWhole(knowledge);
        // The start after the crash may be the next victim: killed early, then left to end.
        for (const int again : {1 + n % 9, 0}) {
            const KilledAt next = KillAtChange(seed + 1, 0, again);
            EXPECT_EQ(knowledge.Learn(next.lines, next.end), "")
                << "seed " << seed << ", change " << n << ", then " << again << Told(killed.lines)
                << "\n  --" << Told(next.lines);
        }
        if (killed.end != -SIGKILL || testing::Test::HasFailure()) break;
        ++kills;
    }
    return kills;
}

TEST(Crash, NothingIsLostWhenKilledBeforeAnyChangeOfAFile)
{
    const bool longForm = qEnvironmentVariableIntValue("PIXANO_LONG") == 1;
    int kills = 0;
    for (unsigned seed = 1; seed <= (longForm ? 8U : 1U) && !HasFailure(); ++seed)
        kills += KillAtEveryChange(seed, longForm ? 1 : 11);
    std::cout << kills << " kills\n";
    EXPECT_GT(kills, 10);
}

}  // namespace
}  // namespace pixano::test
