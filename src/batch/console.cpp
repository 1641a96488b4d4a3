#include "batch/console.h"

#include "batch/harmless.h"
#include "batch/texts.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace pixano::batch {
namespace {

constexpr auto BetweenProgressLines = std::chrono::milliseconds(100);

/// The progress line takes a terminal that can clear a line.
bool ClearsLines()
{
    const char* const kind = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) == 1 && kind != nullptr && *kind != '\0' &&
           std::string_view(kind) != "dumb";
}

}  // namespace

Console::Console(const std::vector<PlannedPicture>& pictures, bool quiet)
    : pictures_(pictures),
      quiet_(quiet),
      terminal_(!quiet && ClearsLines()),
      // A run that is over at once shows no progress.
      nextProgress_(Clock::now() + BetweenProgressLines)
{
}

void Console::Ended(std::size_t place, Outcome outcome)
{
    const std::scoped_lock lock(mutex_);
    waiting_.emplace(place, std::move(outcome));
    ++ended_;
    ClearProgress();
    for (auto next = waiting_.find(printed_); next != waiting_.end();
         next = waiting_.find(printed_)) {
        Print(printed_, next->second);
        waiting_.erase(next);
        ++printed_;
    }
}

void Console::Running(std::string_view effect, int percent)
{
    if (!terminal_) return;
    const std::scoped_lock lock(mutex_);
    const auto now = Clock::now();
    if (now < nextProgress_) return;
    nextProgress_ = now + BetweenProgressLines;
    ShowProgress(Count() + std::string(effect) + "  (" + std::to_string(percent) + "%)");
}

void Console::Print(std::size_t place, const Outcome& outcome)
{
    const PlannedPicture& picture = pictures_[place];
    for (const std::string& text : {outcome.notice, outcome.error})
        if (!text.empty()) std::fprintf(stderr, "pixano-batch: %s\n", Harmless(text).c_str());
    if (outcome.done) PrintResult(picture, outcome.result);
    if (!outcome.done) allDone_ = false;
}

void Console::PrintResult(const PlannedPicture& picture, const std::string& result)
{
    if (quiet_ || result.empty()) return;
    // The picture itself has standard output then.
    std::FILE* const to = picture.output == StandardStream ? stderr : stdout;
    if (std::fprintf(to, "%s\n", Harmless(result).c_str()) >= 0 && std::fflush(to) == 0) return;
    std::fprintf(stderr, "pixano-batch: %s\n", UnprintedText(errno).c_str());
    allDone_ = false;
}

void Console::ShowProgress(const std::string& text)
{
    std::fprintf(stderr, "\r\033[K%s", text.c_str());
    std::fflush(stderr);
    progressShown_ = true;
}

void Console::ClearProgress()
{
    if (progressShown_) std::fputs("\r\033[K", stderr);
    progressShown_ = false;
}

std::string Console::Count() const
{
    if (pictures_.size() == 1) return {};
    return std::to_string(ended_) + (ended_ == 1 ? " immagine su " : " immagini su ") +
           std::to_string(pictures_.size()) + "   ";
}

}  // namespace pixano::batch
