// What the tool does where memory is short. Not with the sanitizers, which take more address space
// than any limit leaves.
#include "batch/tool_run.h"

#include "support/effect_run.h"

#include <set>
#include <sstream>

namespace pixano::batch::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class TooLittleMemory : public Tool {
  protected:
    /// What is told under limits that grow, megabyte by megabyte, until there is enough for `task`.
    std::set<std::string> Told(const std::string& task) const
    {
        std::set<std::string> told;
        for (int megabytes = 2; megabytes < 200; ++megabytes) {
            const std::string limit = "ulimit -v " + std::to_string(megabytes << 10) + "; ";
            // Less than this starts no program.
            if (Shell(limit + "\"$0\" --versione").status != 0) continue;
            const Ran ran = Shell(limit + "exec \"$0\" " + task);
            if (ran.status == 0) break;
            EXPECT_EQ(ran.status, 1) << megabytes << " MB: " << ran.err;
            std::istringstream lines(ran.err);
            for (std::string line; std::getline(lines, line);)
                told.insert(line);
        }
        return told;
    }
};

// A thread takes a thousand megabytes of address space here, of which there are three thousand.
TEST_F(TooLittleMemory, GoesOnWithTheThreadsThatThereAre)
{
    std::filesystem::create_directory(File("fatte"));
    std::string pictures;
    for (int i = 0; i < 8; ++i) {
        Draw(std::to_string(i) + ".bmp", {"abc"});
        pictures += " " + std::to_string(i) + ".bmp";
    }
    const std::string limits = "ulimit -s 1000000 && ulimit -v 3000000 && ";
    const Ran ran = Shell(limits + "\"$0\" -j 8 -d fatte" + pictures);
    EXPECT_EQ(ran.status, 0) << ran.err;
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(Exists("fatte/" + std::to_string(i) + ".bmp")) << i;
}

// While the picture is read, and when there is no room for the effects beside it.
TEST_F(TooLittleMemory, IsToldInItalian)
{
    SaveBitmap(pixano::test::Varied(900, 700), File("a.bmp"));
    const std::string unread = "pixano-batch: Impossibile leggere «a.bmp»: la memoria non basta";
    const std::string undone = "pixano-batch: a.bmp: la memoria non basta";
    EXPECT_THAT(Told("-e Multifoto -o c.bmp a.bmp"), AllOf(testing::IsSupersetOf({unread, undone}),
                                                           testing::Each(HasSubstr(" memoria "))));
    // And wherever else there may be too little.
    std::filesystem::create_directory(File("foglio"));
    SaveBitmap(pixano::test::Varied(300, 200), File("b.bmp"));
    EXPECT_THAT(Told("--tutti -j 1 -d foglio b.bmp"),
                AllOf(testing::Contains("pixano-batch: b.bmp: la memoria non basta"),
                      testing::Each(HasSubstr(" memoria "))));
}

}  // namespace
}  // namespace pixano::batch::test
