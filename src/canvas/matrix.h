// The matrices `Vettore` and `Vettore2`: colour values by column and row. Knows no effect.
#pragma once

#include "canvas/fault.h"
#include "canvas/surface.h"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <span>

namespace pixano {

/// 1501 x 1501 colour values, first index the column, second the row. Cells survive from one effect
/// to the next; a cell never written reads 0.
class Matrix {
  public:
    static constexpr int LastIndex = 1500;

    /// The cell at (column, row). Throws SubscriptOutOfRange outside 0 to 1500.
    Colour& operator()(int column, int row)
    {
        if (static_cast<unsigned>(column) > LastIndex || static_cast<unsigned>(row) > LastIndex)
            throw Fault(FaultKind::SubscriptOutOfRange);
        return cells_[static_cast<std::size_t>(row) * Stride + static_cast<std::size_t>(column)];
    }

    /// The first `columns` (at most 1501) cells of that row. Throws SubscriptOutOfRange outside 0
    /// to 1500.
    std::span<Colour> Row(int row, int columns)
    {
        return {&(*this)(0, row), static_cast<std::size_t>(columns)};
    }

    /// One row by its columns, or one column by its rows; good as long as the matrix.
    template <std::size_t Step>
    class Line {
      public:
        /// The cell there. Throws SubscriptOutOfRange outside 0 to 1500.
        Colour& operator()(int index) const
        {
            if (static_cast<unsigned>(index) > LastIndex)
                throw Fault(FaultKind::SubscriptOutOfRange);
            return first_[static_cast<std::size_t>(index) * Step];
        }

      private:
        friend Matrix;
        explicit Line(Colour* first) : first_(first) {}

        Colour* first_;
    };

    /// The cells of that row. Throws SubscriptOutOfRange outside 0 to 1500.
    auto Row(int row) { return Line<1>(&(*this)(0, row)); }
    /// The cells of that column. Throws SubscriptOutOfRange outside 0 to 1500.
    auto Column(int column) { return Line<Stride>(&(*this)(column, 0)); }

  private:
    static constexpr std::size_t Side = LastIndex + 1;
    /// From row to row: a whole number of cache lines, or processors do not see a walk down a
    /// column coming, and an odd one, or such a walk crowds into a part of the cache.
    static constexpr std::size_t CacheLine = 64 / sizeof(Colour);
    static constexpr std::size_t Stride = ((Side + CacheLine - 1) / CacheLine | 1) * CacheLine;

    struct Free {
        void operator()(Colour* cells) const { std::free(cells); }
    };
    /// Zeroed pages cost nothing until they are touched, so an unused matrix takes neither time nor
    /// memory; a vector would write all nine megabytes.
    // cppcheck-suppress unusedPrivateFunction ; the initialiser below calls it
    static Colour* Zeroed()
    {
        void* cells = std::calloc(Side * Stride, sizeof(Colour));
        if (cells == nullptr) throw std::bad_alloc();
        return static_cast<Colour*>(cells);
    }

    std::unique_ptr<Colour[], Free> cells_{Zeroed()};
};

}  // namespace pixano
