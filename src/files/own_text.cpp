#include "files/own_text.h"

#include "files/atomic_file.h"
#include "files/byte_source.h"
#include "files/refusal.h"
#include "files/regular_file.h"

namespace pixano {

std::optional<std::string> ReadOwnText(const std::string& path)
{
    constexpr std::uint64_t Longest = std::uint64_t{64} * 1024;
    try {
        const RegularFile file = OpenRegularFile(path, Links::Refused);
        if (file.size > Longest) return std::nullopt;
        ByteSource source(file.descriptor.Number(), file.size);
        std::string text(file.size, '\0');
        const std::size_t got = source.Read(std::as_writable_bytes(std::span(text)));
        if (got != file.size) return std::nullopt;
        return text;
    } catch (const Refusal&) {
        return std::nullopt;
    }
}

bool WriteOwnText(const std::string& path, const std::string& text)
{
    try {
        AtomicFile file(path, AtomicFile::Purpose::Working, AtomicFile::Temporary::Named);
        return file.Write(std::as_bytes(std::span(text))) && file.Commit();
    } catch (const Refusal&) {
        return false;
    }
}

}  // namespace pixano
