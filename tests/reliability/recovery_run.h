// A run of the program that ended badly, and the next start after it.
#pragma once

#include "reliability/busy.h"
#include "reliability/checksum.h"
#include "reliability/child.h"
#include "reliability/knowledge.h"
#include "reliability/tampering.h"

#include <gmock/gmock-matchers.h>

#include <set>
#include <string>
#include <vector>

namespace pixano::test {

/// A new run of the program; it answers the offer so, and then ends.
inline std::vector<std::string> NextStart(const std::string& answer = "yes")
{
    Child next({PIXANO_VICTIM, "1", "0"}, {{"PIXANO_ANSWER", answer}});
    std::vector<std::string> lines = next.Rest();
    lines.push_back("status " + std::to_string(next.Wait()));
    return lines;
}

inline const auto Offered = testing::Contains(testing::StartsWith("offer Avviso! "));
inline const auto Lost = testing::Contains(testing::HasSubstr("non è possibile recuperarle"));

class Recovery : public testing::Test {
  protected:
    /// Leaves everything as a run leaves it that is killed.
    void Crash(const QString& name = "a.bmp")
    {
        const Busy busy(name);
        unsaved = Checksum(busy.second);
        // The next run finds a picture, so it need not make any.
        WriteWorkingBitmap(Surface(2, 2), Folders::Path("figura 1.bmp").toStdString());
    }
    /// The pictures put aside in the data folder.
    std::set<std::string> Aside() const
    {
        std::set<std::string> sums;
        for (const QString& name : QDir(folders.Data("")).entryList({"recupero-*.bmp"}))
            sums.insert(ChecksumOfFile(folders.Data(name)));
        return sums;
    }
    std::string Ready(const std::string& sum) const { return "ready " + sum + " modified whole"; }

    const Folders folders;
    const Elsewhere elsewhere{folders.Root().toStdString() + "/altrove.bmp"};
    std::string unsaved;
};

}  // namespace pixano::test
