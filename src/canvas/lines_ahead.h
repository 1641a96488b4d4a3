// Reads a file of plain lines ahead of whoever takes the values. Knows nothing of what else may
// stand in such a file.
#pragma once

#include "canvas/surface.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <mutex>
#include <span>
#include <thread>

namespace pixano {

/// Takes the values from the start of a file, up to the first place that is no plain line (see
/// `ParseLines`).
///
/// The file is read in pieces of whole lines. Reading a piece and parsing one are jobs; whoever
/// waits for values does the next job himself, and in a file of more than a few pieces a second
/// thread does jobs too. So each does what the other leaves, whether the values are waited for or
/// not, and a machine without a second processor loses nothing.
class LinesAhead {
  public:
    LinesAhead() = default;
    ~LinesAhead() { Stop(); }
    LinesAhead(const LinesAhead&) = delete;
    LinesAhead& operator=(const LinesAhead&) = delete;

    /// Begins with `file`, open at its start. Nobody else uses it until `Stop`.
    void Start(std::FILE* file);
    /// The next values, which stay until the next call. None when the next line is no plain one or
    /// the file is at its end.
    std::span<Colour> Next();
    /// Lets go of the file. Gives how many of its characters made the values that were handed out.
    std::size_t Stop();

  private:
    static constexpr std::size_t PieceLength = 1 << 16;
    static constexpr std::size_t PieceCount = 8;

    struct Piece {
        std::unique_ptr<char[]> text;
        std::unique_ptr<Colour[]> values;
        /// How many characters are whole lines.
        std::size_t length = 0;
        /// How many of them were plain lines from the start, and the end of their values.
        std::size_t plain = 0;
        Colour* end = nullptr;
        bool parsed = false;
    };

    Piece& PieceAt(std::size_t number) { return pieces_[number % PieceCount]; }
    void StartHelper();
    void Help();
    bool DoJob(std::unique_lock<std::mutex>& lock);
    bool Read(Piece& piece);
    static void Parse(Piece& piece);

    std::array<Piece, PieceCount> pieces_;
    std::FILE* file_ = nullptr;
    /// The start of a line whose end was not read yet.
    std::unique_ptr<char[]> rest_;
    std::size_t restLength_ = 0;

    /// Guards what follows, and hands the pieces over.
    std::mutex mutex_;
    std::condition_variable changed_;
    /// Pieces are numbered from the start of the file. Those before `first_` are used up, those
    /// before `begun_` are parsed or being parsed, those before `read_` are read.
    std::size_t first_ = 0;
    std::size_t begun_ = 0;
    std::size_t read_ = 0;
    bool reading_ = false;
    bool atEnd_ = false;
    bool stopped_ = false;
    /// Whether the piece `first_` was handed out.
    bool handedOut_ = false;
    /// Characters in the pieces that were handed out.
    std::size_t taken_ = 0;
    std::jthread helper_;
};

}  // namespace pixano
