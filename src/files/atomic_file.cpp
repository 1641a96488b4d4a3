#include "files/atomic_file.h"

#include "files/folder_refusal.h"
#include "files/regular_file.h"

#include <climits>
#include <cstdint>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace pixano {
namespace {

struct Place {
    std::string folder;
    std::string name;
};

Place PlaceOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {.folder = ".", .name = path};
    return {.folder = path.substr(0, slash + 1), .name = path.substr(slash + 1)};
}

/// The path that a chain of links leads to, whether there is a file or not.
std::string WithoutLinks(std::string path)
{
    constexpr int LongestChain = 40;  // as many as the system itself follows
    for (int i = 0; i < LongestChain; ++i) {
        char target[PATH_MAX];
        const ssize_t length = readlink(path.c_str(), target, sizeof target);
        if (length < 0) return path;
        const std::string text(target, static_cast<std::size_t>(length));
        path = text.starts_with('/') ? text : PlaceOf(path).folder + "/" + text;
    }
    throw Refusal(ELOOP);
}

std::string TemporaryName()
{
    std::uint32_t chance[2];
    if (getentropy(chance, sizeof chance) != 0) throw Refusal(errno);
    char name[40];
    std::snprintf(name, sizeof name, ".pixano-%08x%08x.tmp", chance[0], chance[1]);
    return name;
}

/// Where the system shows an open file, so that it can be given a name.
std::string ShownAs(const Descriptor& file)
{
    return "/proc/self/fd/" + std::to_string(file.Number());
}

/// Some folders cannot be opened or synchronised; the file itself is already safe.
void SyncFolder(int folder)
{
    const Descriptor readable(
        Uninterrupted([=] { return openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (readable) Uninterrupted([&] { return fsync(readable.Number()); });
}

/// The old file goes and the new one comes at one stroke, so that the name always leads to a whole
/// file. Many file systems write out a file that takes another's place by a plain renaming, which
/// takes as long as all the rest; they do not when the two change places.
bool ChangePlaces(int folder, const std::string& temporary, const std::string& name)
{
    if (renameat2(folder, temporary.c_str(), folder, name.c_str(), RENAME_EXCHANGE) != 0)
        return false;
    unlinkat(folder, temporary.c_str(), 0);
    return true;
}

}  // namespace

AtomicFile::AtomicFile(const std::string& path, Purpose purpose, Temporary temporary)
    : purpose_(purpose)
{
    const bool document = purpose == Purpose::Document;
    const Place place = PlaceOf(document ? WithoutLinks(path) : path);
    name_ = place.name;
    if (name_.empty()) throw Refusal("manca il nome del file");
    folder_ = Descriptor(Uninterrupted(
        [&] { return open(place.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
    if (!folder_ && errno == ENOENT) RefuseIn(place.folder, errno);
    if (!folder_) throw Refusal(errno);
    struct stat old = {};
    const bool exists = fstatat(folder_.Number(), name_.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
    if (!exists && errno != ENOENT) throw Refusal(errno);
    if (exists && S_ISDIR(old.st_mode)) throw Refusal("è una cartella");
    if (exists && document) {
        RequireRegular(old.st_mode);
        if (faccessat(folder_.Number(), name_.c_str(), W_OK, AT_EACCESS) != 0)
            throw Refusal("il file è protetto da scrittura");
    }
    const unsigned permissions = document && !exists ? 0666 : 0600;
    if (temporary == Temporary::Unnamed) MakeUnnamed(permissions);
    if (!file_) MakeNamed(permissions);
    sink_.emplace(file_.Number());
    if (exists && document) KeepOwnerAndPermissions();
}

AtomicFile::~AtomicFile()
{
    if (!temporary_.empty()) unlinkat(folder_.Number(), temporary_.c_str(), 0);
}

/// What has to be on disk begins to go there while the rest is still made: at the end there is less
/// to wait for.
bool AtomicFile::Write(std::span<const std::byte> bytes) noexcept
{
    constexpr std::size_t Piece = std::size_t{4} << 20;
    if (!sink_->Write(bytes)) return false;
    waiting_ += bytes.size();
    if (purpose_ == Purpose::Working || waiting_ < Piece) return true;
    sync_file_range(file_.Number(), static_cast<off64_t>(begun_), static_cast<off64_t>(waiting_),
                    SYNC_FILE_RANGE_WRITE);
    begun_ += std::exchange(waiting_, 0);
    return true;
}

/// Of a file without a name nothing is left when the program is killed while it writes.
void AtomicFile::MakeUnnamed(unsigned permissions)
{
    constexpr int Flags = O_TMPFILE | O_WRONLY | O_CLOEXEC;
    file_ = Descriptor(
        Uninterrupted([&] { return openat(folder_.Number(), ".", Flags, permissions); }));
    if (file_ && access(ShownAs(file_).c_str(), F_OK) != 0) file_ = Descriptor();
}

void AtomicFile::MakeNamed(unsigned permissions)
{
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    do {
        temporary_ = TemporaryName();
        file_ = Descriptor(openat(folder_.Number(), temporary_.c_str(), Flags, permissions));
    } while (!file_ && (errno == EEXIST || errno == EINTR));
    if (file_) return;
    temporary_.clear();
    RefuseIn(ShownAs(folder_), errno);
}

void AtomicFile::KeepOwnerAndPermissions()
{
    struct stat old = {};
    if (fstatat(folder_.Number(), name_.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0) return;
    // Only the system's administrator can give a file away; everybody else's copy stays his own.
    Uninterrupted([&] { return fchown(file_.Number(), old.st_uid, old.st_gid); });
    Uninterrupted([&] { return fchmod(file_.Number(), old.st_mode & 0777); });
}

bool AtomicFile::GiveName()
{
    if (!temporary_.empty()) return true;
    const std::string shown = ShownAs(file_);
    std::string name;
    do {
        name = TemporaryName();
        if (linkat(AT_FDCWD, shown.c_str(), folder_.Number(), name.c_str(), AT_SYMLINK_FOLLOW) ==
            0) {
            temporary_ = name;
            return true;
        }
    } while (errno == EEXIST);
    return false;
}

bool AtomicFile::Commit()
{
    const bool waits = purpose_ != Purpose::Working;
    if (waits && Uninterrupted([this] { return fsync(file_.Number()); }) != 0) throw Refusal(errno);
    if (!GiveName()) return false;
    if (!file_.Close()) throw Refusal(errno);
    const int folder = folder_.Number();
    const bool exchanged = !waits && ChangePlaces(folder, temporary_, name_);
    if (!exchanged && renameat(folder, temporary_.c_str(), folder, name_.c_str()) != 0)
        throw Refusal(errno);
    temporary_.clear();
    if (waits) SyncFolder(folder);
    return true;
}

void ReplaceFile(const std::string& path, AtomicFile::Purpose purpose,
                 const std::function<void(ByteSink&)>& fill)
{
    for (const auto temporary : {AtomicFile::Temporary::Unnamed, AtomicFile::Temporary::Named}) {
        AtomicFile file(path, purpose, temporary);
        fill(file);
        if (file.Error() != 0) throw Refusal(file.Error());
        if (file.Commit()) return;
    }
}

}  // namespace pixano
