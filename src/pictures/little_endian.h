// Numbers as picture files spell them, low byte first, whatever the machine's own order.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace pixano {

constexpr std::uint32_t ByteSwapped(std::uint32_t value)
{
    return value << 24 | (value & 0xFF00) << 8 | (value >> 8 & 0xFF00) | value >> 24;
}

inline std::uint32_t Load32(const std::byte* bytes)
{
    std::uint32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

inline std::uint16_t Load16(const std::byte* bytes)
{
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[0]) |
                                      std::to_integer<unsigned>(bytes[1]) << 8);
}

inline void Store32(std::byte* bytes, std::uint32_t value)
{
    std::memcpy(bytes, &value, sizeof value);
}

inline void Store16(std::byte* bytes, std::uint16_t value)
{
    bytes[0] = static_cast<std::byte>(value & 0xFF);
    bytes[1] = static_cast<std::byte>(value >> 8);
}

}  // namespace pixano
