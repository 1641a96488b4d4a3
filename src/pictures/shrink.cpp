#include "pictures/shrink.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace pixano {
namespace {

/// Red, green and blue, as sums over an area.
using Sums = std::array<std::uint64_t, 3>;

constexpr int ChannelBits = 8;
constexpr std::uint32_t Channel = 0xFF;

/// Calls `take(i, weight)` for each of the `from` pixels of a line that pixel `place` of `to`
/// covers. A pixel that is covered whole weighs `to`; all together weigh `from`.
template <class Take>
void ForEachCovered(int place, int from, int to, Take take)
{
    const std::int64_t begin = std::int64_t{place} * from;
    const std::int64_t end = begin + from;
    for (std::int64_t i = begin / to; i * to < end; ++i)
        take(static_cast<int>(i),
             static_cast<std::uint64_t>(std::min(end, (i + 1) * to) - std::max(begin, i * to)));
}

/// Adds a row of the picture, made so many pixels narrow, `weight` times.
void AddRow(std::span<const std::uint32_t> row, std::uint64_t weight, std::vector<Sums>& sums)
{
    const int to = static_cast<int>(sums.size());
    for (int x = 0; x < to; ++x) {
        Sums& sum = sums[static_cast<std::size_t>(x)];
        ForEachCovered(x, static_cast<int>(row.size()), to, [&](int i, std::uint64_t covered) {
            std::uint32_t pixel = row[static_cast<std::size_t>(i)];
            for (std::uint64_t& channel : sum) {
                channel += weight * covered * (pixel & Channel);
                pixel >>= ChannelBits;
            }
        });
    }
}

Colour Mean(const Sums& sums, std::uint64_t area)
{
    std::uint64_t colour = 0;
    for (std::size_t i = sums.size(); i-- > 0;)
        // NOLINTNEXTLINE(clang-analyzer-core.DivideZero) a picture that is made smaller has pixels
        colour = colour << ChannelBits | (2 * sums[i] + area) / (2 * area);
    return static_cast<Colour>(colour);
}

/// `side` of the longer one's proportion for the other side, to the nearest pixel.
int InProportion(int other, int longer, int side)
{
    const std::int64_t doubled = 2 * std::int64_t{other} * side + longer;
    return static_cast<int>(std::max<std::int64_t>(1, doubled / (2 * std::int64_t{longer})));
}

}  // namespace

Surface ShrunkWithin(Surface picture, int side)
{
    const int longer = std::max(picture.Width(), picture.Height());
    if (longer <= side) return picture;
    Surface small(InProportion(picture.Width(), longer, side),
                  InProportion(picture.Height(), longer, side));
    const std::uint64_t area =
        static_cast<std::uint64_t>(picture.Width()) * static_cast<std::uint64_t>(picture.Height());
    for (int y = 0; y < small.Height(); ++y) {
        std::vector<Sums> sums(static_cast<std::size_t>(small.Width()));
        ForEachCovered(y, picture.Height(), small.Height(), [&](int i, std::uint64_t covered) {
            AddRow(std::as_const(picture).Row(i), covered, sums);
        });
        for (int x = 0; x < small.Width(); ++x)
            small.PSet(x, y, Mean(sums[static_cast<std::size_t>(x)], area));
    }
    return small;
}

}  // namespace pixano
