#include "files/descriptor.h"

namespace pixano {

bool DescriptorSink::Write(std::span<const std::byte> bytes) noexcept
{
    if (error_ != 0) return false;
    while (!bytes.empty()) {
        const ssize_t done = write(descriptor_, bytes.data(), bytes.size());
        if (done < 0 && errno == EINTR) continue;
        if (done <= 0) {
            // Nothing written and no reason given: asking again could go on for ever.
            error_ = done < 0 ? errno : ENOSPC;
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(done));
    }
    return true;
}

}  // namespace pixano
