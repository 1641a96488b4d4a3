#include "reliability/fuzz_mutation.h"

#include <algorithm>
#include <array>
#include <functional>

namespace pixano::test {
namespace {

/// Beyond this a file is not made longer.
constexpr std::size_t LongestContent = 64 * 1024;

template <class T>
auto At(T& content, std::size_t place)
{
    return content.begin() + static_cast<std::ptrdiff_t>(place);
}

}  // namespace

std::size_t Mutator::Below(std::size_t count)
{
    return count == 0 ? 0 : static_cast<std::size_t>(chance_() % count);
}

std::vector<std::byte> Mutator::Changed(std::span<const Bytes> files)
{
    constexpr std::size_t MostChanges = 6;
    Content content = files[Below(files.size())].Vector();
    const std::size_t changes = 1 + Below(1 + Below(MostChanges));
    for (std::size_t i = 0; i < changes; ++i)
        Change(content, files);
    return content;
}

void Mutator::Change(Content& content, std::span<const Bytes> files)
{
    if (content.empty()) return;
    // The small changes several times: they go deepest.
    const std::array<std::function<void()>, 11> ways{
        [&] { FlipBit(content); },
        [&] { FlipBit(content); },
        [&] { SetByte(content); },
        [&] { SetByte(content); },
        [&] { SetByte(content); },
        [&] { SetNumber(content); },
        [&] { SetNumber(content); },
        [&] { Cut(content); },
        [&] { TakeOut(content); },
        [&] { Repeat(content); },
        [&] { Splice(content, files[Below(files.size())].Vector()); }};
    ways[Below(ways.size())]();
}

std::size_t Mutator::Place(const Content& content)
{
    constexpr std::size_t Head = 64;
    constexpr std::size_t Mark = 3;  // without which it is no picture at all
    const std::size_t end = Below(2) == 0 ? std::min(Head, content.size()) : content.size();
    return end <= Mark || Below(32) == 0 ? Below(end) : Mark + Below(end - Mark);
}

void Mutator::FlipBit(Content& content)
{
    content[Place(content)] ^= std::byte{1} << static_cast<int>(Below(8));
}

void Mutator::SetByte(Content& content)
{
    constexpr std::array<int, 10> Extremes{0x00, 0x01, 0x7F, 0x80, 0xFE, 0xFF, 0xD9, 0xDA, 8, 32};
    const bool extreme = Below(2) == 0;
    content[Place(content)] = static_cast<std::byte>(
        extreme ? static_cast<std::size_t>(Extremes[Below(10)]) : Below(256));
}

/// Two or four bytes become a number that is next to a limit, high byte first or low byte first.
void Mutator::SetNumber(Content& content)
{
    constexpr std::array<std::uint32_t, 18> Extremes{
        0,     1,     2,     3,     255,        256,        4095,       4096,       32766,
        32767, 32768, 65535, 65536, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFE, 0xFFFFFFFF};
    const std::uint32_t value = Extremes[Below(Extremes.size())];
    const std::size_t size = Below(2) == 0 ? 2 : 4;
    const bool highFirst = Below(2) == 0;
    const std::size_t place = Place(content);
    for (std::size_t i = 0; i < size && place + i < content.size(); ++i)
        content[place + i] = static_cast<std::byte>(value >> 8 * (highFirst ? size - 1 - i : i));
}

void Mutator::Cut(Content& content)
{
    content.resize(Below(content.size()) + 1);
}

void Mutator::TakeOut(Content& content)
{
    const std::size_t place = Place(content);
    const std::size_t count = std::min(1 + Below(32), content.size() - place);
    content.erase(At(content, place), At(content, place + count));
}

/// A piece of the content comes again, right behind itself or elsewhere.
void Mutator::Repeat(Content& content)
{
    const std::size_t place = Place(content);
    const std::size_t count = std::min(1 + Below(512), content.size() - place);
    const std::size_t times = 1 + Below(Below(4) == 0 ? 64 : 3);
    if (content.size() + count * times > LongestContent) return;
    const Content piece(At(content, place), At(content, place + count));
    const std::size_t target = Below(2) == 0 ? place + count : Place(content);
    for (std::size_t i = 0; i < times; ++i)
        content.insert(At(content, target), piece.begin(), piece.end());
}

/// From one place on the content is that of another file, from a place of its own on.
void Mutator::Splice(Content& content, const Content& other)
{
    content.resize(Place(content));
    const std::size_t from = Below(other.size());
    if (content.size() + other.size() <= LongestContent)
        content.insert(content.end(), At(other, from), other.end());
    if (content.empty()) content.push_back(std::byte{'B'});
}

}  // namespace pixano::test
