#include "files/own_file.h"

#include "files/atomic_file.h"
#include "files/byte_source.h"
#include "files/folder_refusal.h"

#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

namespace pixano {
namespace {

std::string FolderOf(const std::string& path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    return folder.empty() ? "." : folder.string();
}

}  // namespace

Descriptor CreateOwnFile(const std::string& path)
{
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    if (unlink(path.c_str()) != 0 && errno != ENOENT) RefuseIn(FolderOf(path), errno);
    Descriptor file(Uninterrupted([&] { return open(path.c_str(), Flags, 0600); }));
    if (!file) RefuseIn(FolderOf(path), errno);
    return file;
}

void ReplaceOwnFile(const std::string& path, const std::string& text)
{
    ReplaceFile(path, AtomicFile::Purpose::Working,
                [&](ByteSink& file) { file.Write(std::as_bytes(std::span(text))); });
}

void DeleteOwnFile(const std::string& path)
{
    if (unlink(path.c_str()) == 0) return;
    if (errno == ENOENT) throw Refusal(errno);
    RefuseIn(FolderOf(path), errno);
}

std::string ReadOwnFile(const std::string& path, Links links)
{
    constexpr std::uint64_t Longest = std::uint64_t{64} * 1024;
    const RegularFile file = OpenRegularFile(path, links);
    if (file.size > Longest) throw Refusal(EFBIG);
    ByteSource source(file.descriptor.Number(), file.size);
    std::string text(file.size, '\0');
    text.resize(source.Read(std::as_writable_bytes(std::span(text))));
    if (source.Error() != 0) throw Refusal(source.Error());
    return text;
}

}  // namespace pixano
