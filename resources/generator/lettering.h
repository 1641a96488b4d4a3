// The name "Pixano" in the project's own letters, and lines of plain text, as outlines. Outlines do
// not depend on the screen's way of rendering text. Knows no picture.
#pragma once

#include <QPainterPath>
#include <QString>

namespace pixano::art {

struct Wordmark {
    QPainterPath letters;
    QPainterPath dot;  ///< of the "i": one pixel
};

/// The name, `width` wide, its baseline's middle in (0, 0).
Wordmark Name(double width);

struct TextStyle {
    double size;
    bool bold = false;
    double spacing = 0;  ///< added between letters
};

/// `text` in one line, its baseline's middle in (0, 0). Throws std::runtime_error when the font is
/// missing.
QPainterPath TextLine(const QString& text, const TextStyle& style);

}  // namespace pixano::art
