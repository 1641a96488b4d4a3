#include "canvas/lines_ahead.h"

#include "canvas/value_text.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

namespace pixano {

namespace {

/// Characters of the shortest line: a digit, CR, LF.
constexpr std::size_t ShortestLine = 3;

}  // namespace

void LinesAhead::Start(std::FILE* file)
{
    Stop();
    file_ = file;
    if (rest_) return;
    rest_ = std::make_unique_for_overwrite<char[]>(PieceLength);
    for (Piece& piece : pieces_) {
        piece.text = std::make_unique_for_overwrite<char[]>(PieceLength + LongestLine);
        piece.values = std::make_unique_for_overwrite<Colour[]>(PieceLength / ShortestLine);
    }
}

std::span<Colour> LinesAhead::Next()
{
    std::unique_lock lock(mutex_);
    if (handedOut_) {
        const Piece& used = PieceAt(first_);
        if (used.plain < used.length) return {};
        handedOut_ = false;
        ++first_;
        // Waking the helper for each piece would cost more than it does meanwhile.
        if (read_ - first_ <= PieceCount / 2) changed_.notify_one();
    }
    while (first_ == begun_ || !PieceAt(first_).parsed) {
        if (first_ == read_ && atEnd_) return {};
        if (!DoJob(lock)) changed_.wait(lock);
    }
    handedOut_ = true;
    const Piece& piece = PieceAt(first_);
    taken_ += piece.plain;
    return {piece.values.get(), piece.end};
}

std::size_t LinesAhead::Stop()
{
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        changed_.notify_one();
    }
    if (helper_.joinable()) helper_.join();
    restLength_ = first_ = begun_ = read_ = 0;
    atEnd_ = stopped_ = handedOut_ = false;
    return std::exchange(taken_, 0);
}

void LinesAhead::StartHelper()
{
    if (std::thread::hardware_concurrency() < 2) return;
    try {
        helper_ = std::jthread([this] { Help(); });
    } catch (const std::system_error&) {
        // The system gives no more threads: whoever takes the values does all jobs.
    }
}

void LinesAhead::Help()
{
    std::unique_lock lock(mutex_);
    while (!stopped_)
        if (!DoJob(lock)) changed_.wait(lock);
}

/// Reads or parses a piece; `lock` is open meanwhile. Gives whether there was one to do.
bool LinesAhead::DoJob(std::unique_lock<std::mutex>& lock)
{
    if (!reading_ && !atEnd_ && read_ < first_ + PieceCount) {
        Piece& piece = PieceAt(read_);
        reading_ = true;
        lock.unlock();
        const bool whole = Read(piece);
        lock.lock();
        reading_ = false;
        piece.parsed = false;
        atEnd_ = !whole;
        ++read_;
        // A file that fits in the pieces would be done before a thread has begun.
        if (read_ == PieceCount && !atEnd_) StartHelper();
    } else if (begun_ < read_) {
        Piece& piece = PieceAt(begun_++);
        lock.unlock();
        Parse(piece);
        lock.lock();
        piece.parsed = true;
    } else {
        return false;
    }
    changed_.notify_one();
    return true;
}

/// Gives whether there may be another piece behind this one.
bool LinesAhead::Read(Piece& piece)
{
    char* const text = piece.text.get();
    std::copy_n(rest_.get(), restLength_, text);
    const std::size_t room = PieceLength - restLength_;
    const std::size_t got = std::fread(text + restLength_, 1, room, file_);
    const std::string_view all(text, restLength_ + got);
    piece.length = all.rfind('\n') + 1;  // nothing without a line end
    restLength_ = all.size() - piece.length;
    std::copy_n(text + piece.length, restLength_, rest_.get());
    return got == room && piece.length > 0;
}

void LinesAhead::Parse(Piece& piece)
{
    // Behind the last line stands what is no line, as much as is looked at beyond one.
    std::fill_n(piece.text.get() + piece.length, LongestLine, '\0');
    std::string_view text(piece.text.get(), piece.length + LongestLine);
    piece.end = ParseLines(text, {piece.values.get(), PieceLength / ShortestLine});
    piece.plain = piece.length + LongestLine - text.size();
}

}  // namespace pixano
