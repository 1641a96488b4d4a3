#include "pictures/gif_pixels.h"

namespace pixano {
namespace {

constexpr int LongestCode = 12;

}  // namespace

int GifCodes::Next(int width)
{
    while (bits_ < width) {
        const int byte = NextByte();
        if (byte < 0) return -1;
        held_ |= static_cast<std::uint32_t>(byte) << bits_;
        bits_ += 8;
    }
    const auto code = static_cast<int>(held_ & ((1U << width) - 1));
    held_ >>= width;
    bits_ -= width;
    return code;
}

int GifCodes::NextByte()
{
    if (inBlock_ == 0) inBlock_ = source_.Next();
    if (inBlock_ <= 0) return inBlock_ = -1;
    --inBlock_;
    return source_.Next();
}

GifPixels::GifPixels(ByteSource& source, int codeSize)
    : codes_(source), codeSize_(codeSize), clear_(1 << codeSize), end_(clear_ + 1)
{
    Clear();
}

std::size_t GifPixels::Read(std::span<std::uint16_t> row)
{
    std::size_t got = 0;
    while (got < row.size()) {
        if (waitingCount_ == 0) {
            const int code = codes_.Next(width_);
            if (code == clear_) {
                Clear();
                continue;
            }
            if (!Unpack(code)) break;
        }
        row[got++] = waiting_[--waitingCount_];
    }
    return got;
}

void GifPixels::Clear()
{
    width_ = codeSize_ + 1;
    next_ = end_ + 1;
    previous_ = -1;
}

/// Puts the pixels that the code stands for where they wait; false when it stands for none.
bool GifPixels::Unpack(int code)
{
    const bool isNext = code == next_ && previous_ >= 0;
    if (code < 0 || code == end_ || (code >= next_ && !isNext)) return false;
    // The next code is learned from itself: the pixels before, and their first one again.
    if (isNext) waiting_[waitingCount_++] = first_;
    int rest = isNext ? previous_ : code;
    for (; rest > end_; rest = shorter_[static_cast<std::size_t>(rest)])
        waiting_[waitingCount_++] = last_[static_cast<std::size_t>(rest)];
    first_ = static_cast<std::uint16_t>(rest);
    waiting_[waitingCount_++] = first_;
    Learn();
    previous_ = code;
    return true;
}

/// The next code stands for the pixels before and the first of those now.
void GifPixels::Learn()
{
    if (previous_ >= 0 && next_ < MostCodes) {
        shorter_[static_cast<std::size_t>(next_)] = static_cast<std::uint16_t>(previous_);
        last_[static_cast<std::size_t>(next_)] = first_;
        ++next_;
    }
    if (next_ >= 1 << width_ && width_ < LongestCode) ++width_;
}

}  // namespace pixano
