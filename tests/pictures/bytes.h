// Files spelt out byte by byte.
#pragma once

#include "canvas/surface.h"
#include "pictures/picture_files.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace pixano::test {

/// A file's content, put together piece by piece; numbers low byte first.
class Bytes {
  public:
    Bytes() = default;
    Bytes(std::initializer_list<int> values) { Add(values); }

    Bytes& Add(std::initializer_list<int> values)
    {
        for (const int value : values)
            bytes_.push_back(static_cast<std::byte>(value));
        return *this;
    }
    Bytes& Add(std::string_view text)
    {
        for (const char c : text)
            bytes_.push_back(static_cast<std::byte>(c));
        return *this;
    }
    Bytes& Add(const Bytes& more)
    {
        bytes_.insert(bytes_.end(), more.bytes_.begin(), more.bytes_.end());
        return *this;
    }
    Bytes& U16(std::uint32_t value)
    {
        return Add({static_cast<int>(value & 255), static_cast<int>(value >> 8 & 255)});
    }
    Bytes& U32(std::uint32_t value) { return U16(value & 0xFFFF).U16(value >> 16); }
    Bytes& Zeros(std::size_t count)
    {
        bytes_.insert(bytes_.end(), count, std::byte{0});
        return *this;
    }

    std::size_t Size() const { return bytes_.size(); }
    std::vector<std::byte>& Vector() { return bytes_; }
    const std::vector<std::byte>& Vector() const { return bytes_; }
    /// The content without its last `count` bytes.
    Bytes Without(std::size_t count) const
    {
        Bytes shorter;
        shorter.bytes_.assign(bytes_.begin(), bytes_.end() - static_cast<std::ptrdiff_t>(count));
        return shorter;
    }
    PictureRead Read() const { return ReadPictureFrom(bytes_, "prova"); }
    /// What is said when the content is refused; empty when it is not.
    std::string Refusal() const
    {
        try {
            Read();
        } catch (const PictureError& error) {
            return error.what();
        }
        return {};
    }

    friend bool operator==(const Bytes&, const Bytes&) = default;

  private:
    std::vector<std::byte> bytes_;
};

using Colours = std::vector<Colour>;

/// All pixels, row after row from the top.
inline Colours ColoursOf(const Surface& surface)
{
    Colours colours;
    for (int y = 0; y < surface.Height(); ++y)
        for (int x = 0; x < surface.Width(); ++x)
            colours.push_back(surface.Point(x, y));
    return colours;
}

/// The pixels of a file that is whole.
inline Colours ReadColours(const Bytes& file)
{
    const PictureRead read = file.Read();
    EXPECT_FALSE(read.truncated);
    return ColoursOf(read.picture);
}

/// A colour by its red, green and blue.
constexpr Colour Rgb(int red, int green, int blue)
{
    return red | green << 8 | blue << 16;
}

}  // namespace pixano::test
