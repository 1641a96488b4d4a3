#include "pictures/upright_canvas.h"

#include <algorithm>
#include <utility>

namespace pixano {
namespace {

constexpr int StripRows = 16;  // as many pixels as fill a line of the processor's cache

}  // namespace

UprightCanvas::UprightCanvas(int width, int height, int orientation)
    : width_(width),
      height_(height),
      orientation_(orientation),
      surface_(Turned() ? height : width, Turned() ? width : height)
{
    if (orientation_ != 1) strip_.resize(static_cast<std::size_t>(width) * StripRows);
}

std::uint32_t* UprightCanvas::Row(int y)
{
    if (orientation_ == 1) return surface_.Row(y).data();
    if (y == stripStart_ + StripRows) {
        PlaceStrip(StripRows);
        stripStart_ = y;
    }
    return strip_.data() + static_cast<std::ptrdiff_t>(y - stripStart_) * width_;
}

Surface UprightCanvas::Finish(int rows)
{
    if (orientation_ != 1) PlaceStrip(rows - stripStart_);
    return std::move(surface_);
}

void UprightCanvas::PlaceStrip(int rows)
{
    if (!Turned()) {
        for (int i = 0; i < rows; ++i)
            PlaceRow(strip_.data() + static_cast<std::ptrdiff_t>(i) * width_, stripStart_ + i);
        return;
    }
    const bool fromRight = orientation_ == 6 || orientation_ == 7;
    const bool fromBottom = orientation_ == 7 || orientation_ == 8;
    for (int x = 0; x < width_; ++x) {
        std::uint32_t* const row = surface_.Row(fromBottom ? width_ - 1 - x : x).data();
        const std::uint32_t* pixel = strip_.data() + x;
        for (int y = stripStart_; y < stripStart_ + rows; ++y) {
            row[fromRight ? height_ - 1 - y : y] = *pixel;
            pixel += width_;
        }
    }
}

void UprightCanvas::PlaceRow(const std::uint32_t* row, int y)
{
    const bool mirrored = orientation_ == 2 || orientation_ == 3;
    const bool upsideDown = orientation_ == 3 || orientation_ == 4;
    std::uint32_t* const target = surface_.Row(upsideDown ? height_ - 1 - y : y).data();
    if (mirrored)
        std::reverse_copy(row, row + width_, target);
    else
        std::copy_n(row, width_, target);
}

}  // namespace pixano
