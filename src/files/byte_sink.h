// Where the bytes of a picture go. Knows neither format nor file.
#pragma once

#include <cstddef>
#include <span>

namespace pixano {

class ByteSink {
  public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;
    /// Takes the bytes; false when that failed. Throws nothing, so that it can be called from
    /// inside a C library.
    virtual bool Write(std::span<const std::byte> bytes) noexcept = 0;
    /// The errno of the first write that failed; 0 when none has.
    virtual int Error() const noexcept = 0;
};

}  // namespace pixano
