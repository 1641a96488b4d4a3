// Turns a picture upright while its rows arrive. Knows no file.
#pragma once

#include "canvas/surface.h"

#include <cstdint>
#include <vector>

namespace pixano {

/// Takes the rows of a picture from the top and puts each pixel where its Exif orientation (1 to 8)
/// wants it. No second copy of the picture is made.
class UprightCanvas {
  public:
    /// The picture as it is stored, not as it will stand.
    UprightCanvas(int width, int height, int orientation);

    /// Where the pixels of row `y` are to be written; asked for in order, from row 0.
    std::uint32_t* Row(int y);
    /// The picture, once `rows` rows were written; the others show `Background`.
    Surface Finish(int rows);

  private:
    bool Turned() const { return orientation_ >= 5; }
    void PlaceStrip(int rows);
    void PlaceRow(const std::uint32_t* row, int y);

    int width_;
    int height_;
    int orientation_;
    Surface surface_;
    /// Rows that wait to be placed together: a quarter turn writes them side by side.
    std::vector<std::uint32_t> strip_;
    int stripStart_ = 0;
};

}  // namespace pixano
