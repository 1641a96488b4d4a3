#include "batch/standard_streams.h"

#include "files/byte_sink.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

namespace pixano::batch {
namespace {

std::vector<std::byte> AllInput()
{
    constexpr std::size_t AtLeast = 1 << 16;
    std::vector<std::byte> content;
    std::size_t length = 0;
    for (;;) {
        if (content.size() - length < AtLeast) content.resize(2 * content.size() + AtLeast);
        const ssize_t got = ::read(STDIN_FILENO, &content[length], content.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0)
            throw PictureError(std::string("Impossibile leggere lo standard input: ") +
                               std::strerror(errno));
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return content;
}

class StandardOutput : public ByteSink {
  public:
    bool Write(std::span<const std::byte> bytes) noexcept override
    {
        while (!bytes.empty() && error_ == 0) {
            const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
            if (written >= 0)
                bytes = bytes.subspan(static_cast<std::size_t>(written));
            else if (errno != EINTR)
                error_ = errno;
        }
        return error_ == 0;
    }
    int Error() const noexcept override { return error_; }

  private:
    int error_ = 0;
};

}  // namespace

PictureRead ReadStandardInput()
{
    return ReadPictureFrom(AllInput(), "standard input");
}

void WriteStandardOutput(const Surface& surface)
{
    StandardOutput output;
    Encode(surface, PictureFormat::Bmp, output, "standard output");
}

}  // namespace pixano::batch
