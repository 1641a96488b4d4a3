// Changes a file as damage or malice would, by chance that can be repeated.
#pragma once

#include "pictures/bytes.h"

#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace pixano::test {

class Mutator {
  public:
    explicit Mutator(std::uint64_t seed) : chance_(seed) {}

    /// The content of one of the files, changed in one or several places.
    std::vector<std::byte> Changed(std::span<const Bytes> files);

    /// A number from 0 to `count` - 1.
    std::size_t Below(std::size_t count);

  private:
    using Content = std::vector<std::byte>;

    void Change(Content& content, std::span<const Bytes> files);
    /// A place in the content, in its first bytes more often than not.
    std::size_t Place(const Content& content);
    void FlipBit(Content& content);
    void SetByte(Content& content);
    void SetNumber(Content& content);
    void Cut(Content& content);
    void TakeOut(Content& content);
    void Repeat(Content& content);
    void Splice(Content& content, const Content& other);

    std::mt19937_64 chance_;
};

}  // namespace pixano::test
