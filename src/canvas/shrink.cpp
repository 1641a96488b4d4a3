#include "canvas/shrink.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace pixano {
namespace {

constexpr int ChannelBits = 8;
constexpr std::uint32_t Channel = 0xFF;

/// The pixels of a line under one pixel of the line made smaller, and what the first and the last
/// of them weigh. Those between weigh as many as the smaller line has; all together as many as this
/// one.
struct Under {
    int first;
    int last;
    std::uint32_t firstWeight;
    std::uint32_t lastWeight;  ///< 0 where the first is the last
};

/// What lies under the pixels from `begin` on, `count` of them, of `from` made `to` pixels long.
std::vector<Under> AllUnder(std::int64_t from, std::int64_t to, int begin, int count)
{
    std::vector<Under> all;
    for (std::int64_t place = begin; place < begin + count; ++place) {
        const std::int64_t left = place * from;
        const std::int64_t right = left + from;
        const std::int64_t first = left / to;
        const std::int64_t last = (right - 1) / to;
        const std::int64_t ofFirst = std::min(right, (first + 1) * to) - left;
        const std::int64_t ofLast = first == last ? 0 : right - last * to;
        all.push_back({static_cast<int>(first), static_cast<int>(last),
                       static_cast<std::uint32_t>(ofFirst), static_cast<std::uint32_t>(ofLast)});
    }
    return all;
}

/// Calls `take(i, weight)` for each of these pixels, of a line made `to` pixels long.
template <class Take>
void ForEach(const Under& under, int to, Take take)
{
    take(under.first, under.firstWeight);
    for (int i = under.first + 1; i < under.last; ++i)
        take(i, static_cast<std::uint32_t>(to));
    take(under.last, under.lastWeight);
}

/// The rows under one row of the smaller picture, added up column by column. No side of a picture
/// is so long that a sum could overflow.
class ColumnSums {
  public:
    explicit ColumnSums(int columns)
    {
        for (Sums& sums : channels_)
            sums.resize(static_cast<std::size_t>(columns));
    }
    void Clear()
    {
        for (Sums& sums : channels_)
            std::ranges::fill(sums, 0);
    }
    void Add(std::span<const std::uint32_t> row, std::uint32_t weight)
    {
        int shift = 0;
        for (Sums& sums : channels_) {
            for (std::size_t i = 0; i < row.size(); ++i)
                sums[i] += weight * (row[i] >> shift & Channel);
            shift += ChannelBits;
        }
    }
    /// The mean of the columns, counted from `begin`, that lie under a pixel.
    Colour Mean(const Under& under, int to, int begin, double area) const
    {
        std::uint32_t colour = 0;
        int shift = 0;
        for (const Sums& sums : channels_) {
            std::uint64_t whole = 0;
            ForEach(under, to, [&](int i, std::uint64_t weight) {
                whole += weight * sums[static_cast<std::size_t>(i - begin)];
            });
            // Exact: all these numbers are whole, and far below what a double holds.
            const double twice = 2 * static_cast<double>(whole);
            colour |= static_cast<std::uint32_t>((twice + area) / (2 * area)) << shift;
            shift += ChannelBits;
        }
        return static_cast<Colour>(colour);
    }

  private:
    using Sums = std::vector<std::uint32_t>;

    std::array<Sums, 3> channels_;
};

/// `side` of the longer one's proportion for the other side, to the nearest pixel.
int InProportion(int other, int longer, int side)
{
    const std::int64_t doubled = 2 * std::int64_t{other} * side + longer;
    return static_cast<int>(std::max<std::int64_t>(1, doubled / (2 * std::int64_t{longer})));
}

}  // namespace

Surface ShrunkPart(const Surface& picture, int width, int height, const Part& part)
{
    Surface shrunk(part.width, part.height);
    if (part.width == 0) return shrunk;
    const double area = static_cast<double>(picture.Width()) * picture.Height();
    const std::vector<Under> across = AllUnder(picture.Width(), width, part.left, part.width);
    const int begin = across.front().first;
    const int columns = across.back().last + 1 - begin;
    ColumnSums sums(columns);
    int y = 0;
    for (const Under& rows : AllUnder(picture.Height(), height, part.top, part.height)) {
        sums.Clear();
        ForEach(rows, height, [&](int i, std::uint32_t weight) {
            sums.Add(picture.Row(i).subspan(static_cast<std::size_t>(begin),
                                            static_cast<std::size_t>(columns)),
                     weight);
        });
        int x = 0;
        for (const Under& under : across)
            shrunk.PSet(x++, y, sums.Mean(under, width, begin, area));
        ++y;
    }
    return shrunk;
}

// cppcheck-suppress passedByValue ; it is given back where it fits
Surface ShrunkWithin(Surface picture, int side)
{
    const int longer = std::max(picture.Width(), picture.Height());
    if (longer <= side) return picture;
    const int width = InProportion(picture.Width(), longer, side);
    const int height = InProportion(picture.Height(), longer, side);
    return ShrunkPart(picture, width, height, {0, 0, width, height});
}

}  // namespace pixano
