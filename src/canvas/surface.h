// The pixels of the canvas: point-read, point-set, clear. Knows no window and no file.
#pragma once

#include "canvas/large_pages.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pixano {

static_assert(std::endian::native == std::endian::little,
              "pixels, bytes of files and digits are handled as words");

/// A packed colour: red + 256 green + 65536 blue, 0 to &HFFFFFF; `Outside` where there is no pixel.
using Colour = std::int32_t;

/// What a point outside the picture reads as.
inline constexpr Colour Outside = -1;
/// What `Cls` paints, and what shows through the holes of a transparent picture.
inline constexpr Colour Background = 0xC0C0C0;
/// The three bytes of a colour that can be drawn.
inline constexpr Colour White = 0xFFFFFF;

/// The pixel surface that effects work on. Column 0 is the left edge, row 0 the top edge.
///
/// Coordinates are pixels. Single (float) coordinates mean the nearest pixel, a half going to the
/// lower one (49.5 is pixel 49); there is no overload for double: the caller rounds to Single once.
class Surface {
  public:
    Surface() = default;
    /// A surface of `width` by `height` pixels (0 or more each), all of one colour.
    Surface(int width, int height, Colour colour = Background);

    int Width() const { return static_cast<int>(width_); }
    int Height() const { return static_cast<int>(height_); }

    /// The colour at (x, y), or `Outside`.
    Colour Point(int x, int y) const
    {
        const std::uint32_t* const pixels = pixels_.data();
        return Inside(x, y) ? ColourOf(pixels[Offset(x, y)]) : Outside;
    }
    Colour Point(float x, float y) const { return Point(Nearest(x), Nearest(y)); }
    Colour Point(double x, double y) const = delete;
    /// The colours of row `y` from the left edge on, as many as there is room for.
    void ReadRow(int y, std::span<Colour> colours) const;

    /// Paints (x, y) with the low three bytes of `colour` (two's complement, so -1 is white).
    /// A place outside the surface is ignored.
    void PSet(int x, int y, Colour colour)
    {
        std::uint32_t* const pixels = pixels_.data();
        if (Inside(x, y)) pixels[Offset(x, y)] = WordOf(colour);
    }
    void PSet(float x, float y, Colour colour) { PSet(Nearest(x), Nearest(y), colour); }
    void PSet(double x, double y, Colour colour) = delete;
    /// Paints row `y` from the left edge on.
    void PaintRow(int y, std::span<const Colour> colours);

    /// Paints everything with `Background`.
    void Cls();

    /// Row `y` (0 to Height() - 1) as it lies in memory: one 32-bit word a pixel, the colour in the
    /// low three bytes, &HFF in the high one.
    std::span<std::uint32_t> Row(int y) { return {&pixels_[Offset(0, y)], width_}; }
    std::span<const std::uint32_t> Row(int y) const { return {&pixels_[Offset(0, y)], width_}; }
    /// What such a word has beside its colour.
    static constexpr std::uint32_t Opaque = 0xFF000000;
    /// The colour in such a word.
    static Colour ColourOf(std::uint32_t pixel) { return static_cast<Colour>(pixel & ColourMask); }
    /// The rows from the top, without gaps.
    const std::uint32_t* Pixels() const { return pixels_.data(); }

    /// Same size and same colours.
    friend bool operator==(const Surface&, const Surface&) = default;

  private:
    static constexpr std::uint32_t ColourMask = 0x00FFFFFF;

    static std::uint32_t WordOf(Colour colour)
    {
        return static_cast<std::uint32_t>(colour) | Opaque;
    }
    bool Inside(int x, int y) const
    {
        // Both sides are looked up at once, so that a loop over a row can do it before it starts.
        const std::size_t width = width_;
        const std::size_t height = height_;
        // Unsigned comparisons tell negative places too.
        return static_cast<unsigned>(x) < width && static_cast<unsigned>(y) < height;
    }
    /// How many of `places` in row `y`, counted from the left edge, are inside.
    std::size_t Reached(int y, std::size_t places) const
    {
        return static_cast<unsigned>(y) < height_ ? std::min(places, width_) : 0;
    }
    std::size_t Offset(int x, int y) const
    {
        return static_cast<std::size_t>(y) * width_ + static_cast<std::size_t>(x);
    }
    /// The nearest whole number, a half going down; -1 (outside) where no pixel can be meant.
    static int Nearest(float coordinate)
    {
        constexpr float Limit = 1 << 24;  // far outside any surface, still exact in an int
        if (!(std::fabs(coordinate) < Limit)) return -1;
        // Halves would go to the even neighbour: a little off takes them down, too little to take
        // any other Single there.
        constexpr double Little = 0x1p-26;
        return static_cast<int>(std::lrint(coordinate - Little));
    }

    /// First: an assignment for which memory is too short changes nothing then.
    std::vector<std::uint32_t, LargePages<std::uint32_t>> pixels_;
    /// Wider than a pixel, so that no painted pixel can be mistaken for a side that changed.
    std::size_t width_ = 0;
    std::size_t height_ = 0;
};

}  // namespace pixano
