#include "batch/standard_streams.h"

#include "files/descriptor.h"
#include "files/system_reason.h"

#include <cerrno>
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
            throw PictureError(FaultKind::FileAccess,
                               "Impossibile leggere lo standard input: " + SystemReason(errno));
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return content;
}

}  // namespace

PictureRead ReadStandardInput()
{
    return ReadPictureFrom(AllInput(), "standard input");
}

void WriteStandardOutput(const Surface& surface)
{
    DescriptorSink output(STDOUT_FILENO);
    Encode(surface, PictureFormat::Bmp, output, "standard output");
}

}  // namespace pixano::batch
