#include "pictures/icc_profile.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace pixano {
namespace {

using Profile = std::vector<std::byte>;

/// Far more than profiles of screens, cameras and printers have; a file may claim anything.
constexpr std::size_t Longest = std::size_t{1} << 21;

Profile Taken(ByteSource& source, std::size_t count)
{
    Profile bytes(count);
    bytes.resize(source.Read(bytes));
    return bytes;
}

void Add(Profile& profile, std::span<const std::byte> bytes)
{
    profile.insert(profile.end(), bytes.begin(), bytes.end());
}

/// A number of `count` bytes, the lowest or the highest first; what lies behind the end counts as
/// 255.
std::size_t LowFirst(ByteSource& source, int count)
{
    std::size_t number = 0;
    for (int i = 0; i < count; ++i)
        number |= static_cast<std::size_t>(source.Next() & 0xFF) << 8 * i;
    return number;
}

std::size_t HighFirst(std::span<const std::byte> bytes)
{
    std::size_t number = 0;
    for (const std::byte byte : bytes)
        number = number << 8 | std::to_integer<std::size_t>(byte);
    return number;
}

bool HasAt(std::span<const std::byte> bytes, std::size_t place, std::string_view text)
{
    return bytes.size() >= place + text.size() &&
           std::ranges::equal(bytes.subspan(place, text.size()), std::as_bytes(std::span(text)));
}

bool Fits(const Profile& profile)
{
    constexpr std::size_t Shortest = 132;  // its head and the number of its tags
    return profile.size() >= Shortest && profile.size() <= Longest &&
           HighFirst(std::span(profile).first(4)) == profile.size() && HasAt(profile, 16, "RGB ") &&
           HasAt(profile, 36, "acsp");
}

/// The byte behind the next &HFF; -1 at the end.
int NextMarker(ByteSource& source)
{
    int byte = source.Next();
    while (byte >= 0) {
        const bool marked = byte == 0xFF;
        byte = source.Next();
        if (marked && byte != 0 && byte != 0xFF) break;
    }
    return byte;
}

/// A long profile lies in several segments, each with its number, in any order.
Profile FromJpeg(ByteSource& source)
{
    constexpr std::string_view Name("ICC_PROFILE\0", 12);
    constexpr std::size_t NumberAndCount = 2;
    constexpr int StartOfScan = 0xDA;
    constexpr int App2 = 0xE2;
    std::map<std::byte, Profile> parts;
    std::size_t total = 0;
    source.Seek(2);
    for (int marker = NextMarker(source); marker >= 0 && marker != StartOfScan;
         marker = NextMarker(source)) {
        const bool alone = marker == 1 || (marker >= 0xD0 && marker <= 0xD9);
        if (alone) continue;
        const std::size_t length = HighFirst(Taken(source, 2));
        if (length < 2) return {};
        const std::uint64_t end = source.Position() + length - 2;
        const Profile segment = marker == App2 ? Taken(source, length - 2) : Profile();
        source.Seek(end);
        if (!HasAt(segment, 0, Name) || segment.size() < Name.size() + NumberAndCount) continue;
        total += segment.size();
        if (total > Longest) return {};
        Add(parts[segment[Name.size()]], std::span(segment).subspan(Name.size() + NumberAndCount));
    }
    Profile profile;
    for (const auto& [number, part] : parts)
        Add(profile, part);
    return profile;
}

/// Only the longest of the heads has a place for it.
Profile FromBmp(ByteSource& source)
{
    constexpr std::uint64_t Head = 14;
    constexpr std::size_t LongestHead = 124;
    constexpr std::size_t Embedded = 'M' << 24 | 'B' << 16 | 'E' << 8 | 'D';
    source.Seek(Head);
    if (LowFirst(source, 4) != LongestHead) return {};
    source.Seek(Head + 56);
    if (LowFirst(source, 4) != Embedded) return {};
    source.Seek(Head + 112);
    const std::size_t place = LowFirst(source, 4);
    const std::size_t length = LowFirst(source, 4);
    source.Seek(Head + place);
    return length <= Longest ? Taken(source, length) : Profile();
}

/// The pieces up to the empty one, joined; those beyond the longest profile are passed over.
Profile JoinedBlocks(ByteSource& source)
{
    Profile joined;
    for (int length = source.Next(); length > 0; length = source.Next()) {
        const Profile block = Taken(source, static_cast<std::size_t>(length));
        if (joined.size() <= Longest) Add(joined, block);
    }
    return joined;
}

/// It is an extension before the first frame.
Profile FromGif(ByteSource& source)
{
    constexpr std::string_view Name = "ICCRGBG1012";
    constexpr int Extension = 0x21;
    const Profile head = Taken(source, 13);
    if (head.size() < 13) return {};
    const auto flags = std::to_integer<unsigned>(head[10]);
    if ((flags & 0x80) != 0) source.Seek(source.Position() + (std::uint64_t{6} << (flags & 7)));
    while (source.Next() == Extension) {
        const bool application = source.Next() == 0xFF;
        const int length = source.Next();
        if (length <= 0) continue;
        const Profile called = Taken(source, static_cast<std::size_t>(length));
        Profile content = JoinedBlocks(source);
        if (application && HasAt(called, 0, Name)) return content;
    }
    return {};
}

Profile Found(ByteSource& source)
{
    source.Seek(0);
    const Profile start = Taken(source, 2);
    source.Seek(0);
    if (HasAt(start, 0, "BM")) return FromBmp(source);
    if (HasAt(start, 0, "\xFF\xD8")) return FromJpeg(source);
    return FromGif(source);
}

}  // namespace

std::vector<std::byte> ProfileIn(ByteSource& source)
{
    Profile profile = Found(source);
    return Fits(profile) ? std::move(profile) : Profile();
}

}  // namespace pixano
