// Why a file is not read or written: in Italian, and as which run-time error.
#include "files/refusal.h"

#include "files/regular_file.h"
#include "support/temporary_folder.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace pixano::test {
namespace {

using K = FaultKind;

struct Reason {
    int error;
    const char* text;
    FaultKind kind;
};

constexpr Reason Reasons[] = {
    {ENOENT, "il file non esiste", K::FileNotFound},
    {ENOTDIR, "una parte del percorso non è una cartella", K::FileAccess},
    {EISDIR, "è una cartella", K::FileAccess},
    {EACCES, "manca il permesso", K::FileAccess},
    {EPERM, "manca il permesso", K::FileAccess},
    {EROFS, "il disco è in sola lettura", K::FileAccess},
    {ENOSPC, "non c'è più spazio sul disco", K::DiskFull},
    {EDQUOT, "la quota disco dell'utente è esaurita", K::DiskFull},
    {EFBIG, "il file supera la dimensione consentita", K::DiskFull},
    {ENAMETOOLONG, "il nome è troppo lungo", K::FileAccess},
    {ELOOP, "i collegamenti non portano a nessun file", K::FileAccess},
    {EMFILE, "ci sono troppi file aperti", K::FileAccess},
    {ENFILE, "ci sono troppi file aperti", K::FileAccess},
    {ENOMEM, "la memoria non basta", K::OutOfMemory},
    {EPIPE, "chi riceve i dati ha smesso di leggere", K::FileAccess},
    {EBADF, "il canale è chiuso", K::FileAccess},
    {EIO, "il disco non risponde come dovrebbe", K::FileAccess},
    {EXDEV, "il sistema segnala l'errore 18", K::FileAccess},
};

/// What `TellRefusal` makes of what the step throws.
template <typename Step>
Fault ToldOf(Step step)
{
    try {
        TellRefusal("salvare", "a.bmp", step);
    } catch (const Fault& fault) {
        return fault;
    }
    return Fault(K::InvalidCall, "nothing was told");
}

TEST(Refusal, TellsTheSystemsReasonInItalian)
{
    for (const auto& [error, text, kind] : Reasons) {
        const int thrown = error;
        const Fault fault = ToldOf([thrown] { throw Refusal(thrown); });
        EXPECT_EQ(fault.what(), "Impossibile salvare «a.bmp»: " + std::string(text));
        EXPECT_EQ(fault.Kind(), kind) << text;
    }
}

TEST(Refusal, TellsAReasonOfItsOwnAndThatMemoryIsShort)
{
    const Fault own = ToldOf([] { throw Refusal("è un disegno"); });
    EXPECT_STREQ(own.what(), "Impossibile salvare «a.bmp»: è un disegno");
    EXPECT_EQ(own.Kind(), K::FileAccess);
    const Fault memory = ToldOf([] { throw std::bad_alloc(); });
    EXPECT_STREQ(memory.what(), "Impossibile salvare «a.bmp»: la memoria non basta");
    EXPECT_EQ(memory.Kind(), K::OutOfMemory);
}

/// What is said of `path` when it is opened; empty when it is.
std::string SaidOf(const std::string& path, Links links)
{
    try {
        OpenRegularFile(path, links);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return {};
}

TEST(RegularFile, TellsWhatItIsInstead)
{
    const TemporaryFolder folder;
    WriteBytes(folder / "file", "abc");
    std::filesystem::create_symlink(folder / "file", folder / "link");
    std::filesystem::create_symlink(folder / "missing", folder / "dead");
    std::filesystem::create_symlink(folder / "loop", folder / "loop");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    (folder / "socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(server);
    struct Told {
        const char* name;
        const char* followed;
        const char* refused;
    };
    for (const auto& [name, followed, refused] :
         {Told{"file", "", ""},
          {"link", "", "è un collegamento"},
          {"dead", "il collegamento porta a un file che non esiste", "è un collegamento"},
          {"loop", "i collegamenti non portano a nessun file", "è un collegamento"},
          {"missing", "il file non esiste", "il file non esiste"},
          {"file/x", "una parte del percorso non è una cartella",
           "una parte del percorso non è una cartella"},
          {"pipe", "è una pipe, non un file", "è una pipe, non un file"},
          {"socket", "è un socket, non un file", "è un socket, non un file"},
          {".", "è una cartella", "è una cartella"}}) {
        EXPECT_EQ(SaidOf(folder / name, Links::Followed), followed) << name;
        EXPECT_EQ(SaidOf(folder / name, Links::Refused), refused) << name;
    }
    EXPECT_EQ(SaidOf("/dev/null", Links::Refused), "è un dispositivo, non un file");
    EXPECT_EQ(OpenRegularFile(folder / "file", Links::Refused).size, 3U);
}

}  // namespace
}  // namespace pixano::test
