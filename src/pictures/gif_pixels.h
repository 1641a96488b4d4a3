// The pixels of a GIF frame, unpacked from its codes. Knows neither screen nor colours.
#pragma once

#include "files/byte_source.h"

#include <array>
#include <cstdint>
#include <span>

namespace pixano {

/// The codes of a frame: bits, lowest first, in blocks that each tell their length.
class GifCodes {
  public:
    explicit GifCodes(ByteSource& source) : source_(source) {}

    /// The next `width` bits; -1 when there are not so many.
    int Next(int width);

  private:
    int NextByte();

    ByteSource& source_;
    int inBlock_ = 0;
    std::uint32_t held_ = 0;
    int bits_ = 0;
};

class GifPixels {
  public:
    /// The codes of the longest kind have 12 bits, and two of them mean no pixel.
    static constexpr int LargestCodeSize = 11;

    /// `codeSize`: how many bits a pixel takes, at most `LargestCodeSize`. The source stands at the
    /// first block.
    GifPixels(ByteSource& source, int codeSize);

    /// Fills `row` with the indices of the next pixels; how many there were. There are fewer only
    /// where the codes end or make no sense: nothing behind such a place is known.
    std::size_t Read(std::span<std::uint16_t> row);

  private:
    static constexpr int MostCodes = 1 << 12;

    void Clear();
    bool Unpack(int code);
    void Learn();

    GifCodes codes_;
    const int codeSize_;
    const int clear_;
    const int end_;
    int width_ = 0;
    /// The first code without a meaning.
    int next_ = 0;
    /// The code before, and the first pixel that it stands for; -1 when there is none.
    int previous_ = -1;
    std::uint16_t first_ = 0;
    /// A code from `end_` on stands for the pixels of another one and one more.
    std::array<std::uint16_t, MostCodes> shorter_{};
    std::array<std::uint16_t, MostCodes> last_{};
    /// Unpacked pixels, the next one at the end.
    std::array<std::uint16_t, MostCodes + 1> waiting_{};
    std::size_t waitingCount_ = 0;
};

}  // namespace pixano
