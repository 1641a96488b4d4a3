// What the tool says while it works: result lines, notices, errors, and on a terminal the progress
// line. Lines come in the order of the command line, whatever finishes first.
#pragma once

#include "batch/picture_job.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <mutex>

namespace pixano::batch {

/// May be used by several threads at once.
class Console {
  public:
    Console(const std::vector<PlannedPicture>& pictures, bool quiet);

    /// The picture at that place of the list has ended.
    void Ended(std::size_t place, Outcome outcome);
    /// An effect has come to `percent`; shown at most ten times a second.
    void Running(std::string_view effect, int percent);

    bool AllDone() const { return allDone_; }

  private:
    using Clock = std::chrono::steady_clock;

    void Print(std::size_t place, const Outcome& outcome);
    void PrintResult(const PlannedPicture& picture, const std::string& result);
    void ShowProgress(const std::string& text);
    void ClearProgress();
    std::string Count() const;

    const std::vector<PlannedPicture>& pictures_;
    const bool quiet_;
    const bool terminal_;
    std::mutex mutex_;
    std::map<std::size_t, Outcome> waiting_;
    std::size_t printed_ = 0;
    std::size_t ended_ = 0;
    bool allDone_ = true;
    bool progressShown_ = false;
    Clock::time_point nextProgress_;
};

}  // namespace pixano::batch
