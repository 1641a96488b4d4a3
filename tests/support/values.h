// Small pictures written as tables of packed values, where the arithmetic on them is what counts;
// and a plain picture to work out on what an effect must give.
#pragma once

#include "canvas/surface.h"

#include <vector>

namespace pixano::test {

using Values = std::vector<std::vector<Colour>>;

/// The surface painted with rows of equal length.
inline Surface Painted(const Values& rows)
{
    Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            surface.PSet(x, y, rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    return surface;
}

inline Values ValuesOf(const Surface& surface)
{
    Values rows;
    for (int y = 0; y < surface.Height(); ++y) {
        auto& row = rows.emplace_back();
        for (int x = 0; x < surface.Width(); ++x)
            row.push_back(surface.Point(x, y));
    }
    return rows;
}

/// Rows of values with an outside; holds what is painted on it, down to the drawable bytes.
class Sheet {
  public:
    explicit Sheet(const Surface& surface) : rows_(ValuesOf(surface)) {}

    int Width() const { return static_cast<int>(rows_.front().size()); }
    int Height() const { return static_cast<int>(rows_.size()); }
    bool Has(int x, int y) const { return x >= 0 && x < Width() && y >= 0 && y < Height(); }

    /// The value at (x, y), -1 outside.
    Colour At(int x, int y) const { return Has(x, y) ? Cell(x, y) : -1; }
    void Paint(int x, int y, Colour value)
    {
        if (Has(x, y))
            rows_[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = value & 0xFFFFFF;
    }
    /// Every pixel of `surface` is as on this sheet.
    bool Shows(const Surface& surface) const { return rows_ == ValuesOf(surface); }

  private:
    Colour Cell(int x, int y) const
    {
        return rows_[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    }

    Values rows_;
};

}  // namespace pixano::test
