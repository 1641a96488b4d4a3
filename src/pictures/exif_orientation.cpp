#include "pictures/exif_orientation.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace pixano {
namespace {

constexpr std::string_view Signature("Exif\0\0", 6);

/// The numbers of a TIFF block in its own byte order; 0 for what lies outside of it.
class Tiff {
  public:
    explicit Tiff(std::span<const std::byte> bytes) : bytes_(bytes)
    {
        bigEndian_ = !bytes.empty() && bytes.front() == std::byte{'M'};
    }
    bool Valid() const
    {
        const std::uint32_t order = Short(0);
        return (order == 0x4949 || order == 0x4D4D) && Short(2) == 42;
    }
    std::uint32_t Short(std::uint64_t place) const
    {
        return bigEndian_ ? Byte(place) << 8 | Byte(place + 1) : Byte(place + 1) << 8 | Byte(place);
    }
    std::uint32_t Long(std::uint64_t place) const
    {
        return bigEndian_ ? Short(place) << 16 | Short(place + 2)
                          : Short(place + 2) << 16 | Short(place);
    }

  private:
    std::uint32_t Byte(std::uint64_t place) const
    {
        return place < bytes_.size() ? std::to_integer<std::uint32_t>(bytes_[place]) : 0;
    }

    std::span<const std::byte> bytes_;
    bool bigEndian_ = false;
};

}  // namespace

bool BeginsAsExif(std::span<const std::byte> segment)
{
    return segment.size() > Signature.size() &&
           std::ranges::equal(segment.first(Signature.size()), std::as_bytes(std::span(Signature)));
}

int ExifOrientation(std::span<const std::byte> segment)
{
    constexpr std::uint32_t OrientationTag = 0x0112;
    constexpr std::uint32_t ShortType = 3;
    constexpr std::uint32_t LongType = 4;
    constexpr std::uint64_t EntrySize = 12;
    if (!BeginsAsExif(segment)) return 1;
    const Tiff tiff(segment.subspan(Signature.size()));
    if (!tiff.Valid()) return 1;
    const std::uint64_t directory = tiff.Long(4);
    const std::uint64_t count = tiff.Short(directory);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t entry = directory + 2 + i * EntrySize;
        if (tiff.Short(entry) != OrientationTag) continue;
        const std::uint32_t type = tiff.Short(entry + 2);
        const std::uint32_t value = type == LongType ? tiff.Long(entry + 8) : tiff.Short(entry + 8);
        const bool known = (type == ShortType || type == LongType) && value >= 1 && value <= 8;
        return known ? static_cast<int>(value) : 1;
    }
    return 1;
}

}  // namespace pixano
