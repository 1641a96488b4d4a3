#include "shell/own_text.h"

#include "pictures/atomic_file.h"
#include "pictures/byte_source.h"
#include "pictures/refusal.h"
#include "pictures/regular_file.h"

namespace pixano {

std::optional<QByteArray> ReadOwnText(const QString& path)
{
    constexpr std::uint64_t Longest = std::uint64_t{64} * 1024;
    try {
        const RegularFile file = OpenRegularFile(path.toStdString(), Links::Refused);
        if (file.size > Longest) return std::nullopt;
        ByteSource source(file.descriptor.Number(), file.size);
        QByteArray text(static_cast<qsizetype>(file.size), '\0');
        const std::size_t got = source.Read(std::as_writable_bytes(std::span(text)));
        if (got != file.size) return std::nullopt;
        return text;
    } catch (const Refusal&) {
        return std::nullopt;
    }
}

bool WriteOwnText(const QString& path, const QByteArray& text)
{
    try {
        AtomicFile file(path.toStdString(), AtomicFile::Purpose::Working,
                        AtomicFile::Temporary::Named);
        return file.Write(std::as_bytes(std::span(text))) && file.Commit();
    } catch (const Refusal&) {
        return false;
    }
}

}  // namespace pixano
