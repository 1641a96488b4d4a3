#include "files/descriptor.h"

#include <csignal>
#include <ctime>

namespace pixano {
namespace {

/// Holds off SIGXFSZ, which would end the program when a file reaches the limit set on its size.
/// Only this thread is concerned: the signal goes to the thread that writes.
class FileSizeSignalHeld {
  public:
    FileSizeSignalHeld()
    {
        sigemptyset(&signal_);
        sigaddset(&signal_, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &signal_, &before_);
    }
    FileSizeSignalHeld(const FileSizeSignalHeld&) = delete;
    FileSizeSignalHeld& operator=(const FileSizeSignalHeld&) = delete;
    ~FileSizeSignalHeld()
    {
        const int error = errno;
        if (sigismember(&before_, SIGXFSZ) == 0) {
            constexpr timespec Now{};
            while (sigtimedwait(&signal_, nullptr, &Now) > 0) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
        errno = error;
    }

  private:
    sigset_t signal_{};
    sigset_t before_{};
};

}  // namespace

bool DescriptorSink::Write(std::span<const std::byte> bytes) noexcept
{
    if (error_ != 0) return false;
    const FileSizeSignalHeld held;
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
