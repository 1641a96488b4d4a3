// One colour channel of a pixel whose bits a mask tells. Knows no file.
#pragma once

#include <bit>
#include <cstdint>

namespace pixano {

/// The bits of `mask`, which must lie side by side, scaled to 0 to 255.
class BitChannel {
  public:
    explicit BitChannel(std::uint32_t mask)
        : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), most_(mask >> shift_)
    {
    }

    bool SideBySide() const { return (most_ & (most_ + 1)) == 0; }
    bool IsByte() const { return most_ == 255; }
    int Shift() const { return shift_; }

    /// Full at all bits set, in between to the nearest; 0 for an empty mask.
    std::uint32_t Of(std::uint32_t pixel) const
    {
        if (most_ == 0) return 0;
        const std::uint64_t value = (pixel & mask_) >> shift_;
        return static_cast<std::uint32_t>((value * 510 + most_) / (2 * std::uint64_t{most_}));
    }

  private:
    std::uint32_t mask_;
    int shift_;
    std::uint32_t most_;
};

}  // namespace pixano
