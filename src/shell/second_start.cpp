#include "shell/second_start.h"

#include "windows/file_names.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <optional>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace pixano {
namespace {

constexpr const char* SocketName = "pixano.socket";
/// A message is one of these letters, the first one followed by a path.
constexpr char ToOpen = 'A';
constexpr char ComeForward = 'V';
constexpr char Heard = 'S';
constexpr std::size_t LongestMessage = PATH_MAX + 1;

Descriptor OpenFolder(const QString& path)
{
    return Descriptor(open(FileBytes(path).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

/// The socket's name by way of the open folder: an address has no room for long paths.
sockaddr_un AddressIn(const Descriptor& folder)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = "/proc/self/fd/" + std::to_string(folder.Number()) + '/' + SocketName;
    std::ranges::copy(path, std::begin(address.sun_path));
    return address;
}

Descriptor NewSocket()
{
    return Descriptor(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

const sockaddr* Plain(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

/// Waits until there is something to be read; gives whether there is by then.
bool WaitFor(const Descriptor& socket, const QDeadlineTimer& end)
{
    pollfd awaited{.fd = socket.Number(), .events = POLLIN, .revents = 0};
    return poll(&awaited, 1, static_cast<int>(end.remainingTime())) == 1;
}

bool IsOfThisUser(const Descriptor& connection)
{
    ucred who{};
    socklen_t size = sizeof who;
    return getsockopt(connection.Number(), SOL_SOCKET, SO_PEERCRED, &who, &size) == 0 &&
           who.uid == geteuid();
}

/// Receives the picture asked for, or an empty path; nothing when the message is neither.
std::optional<QString> ReceivePath(const Descriptor& connection)
{
    std::array<char, LongestMessage + 1> buffer{};
    const ssize_t size = recv(connection.Number(), buffer.data(), buffer.size(), MSG_TRUNC);
    if (size <= 0 || static_cast<std::size_t>(size) > LongestMessage) return std::nullopt;
    const QByteArray message(buffer.data(), static_cast<qsizetype>(size));
    if (message == QByteArray(1, ComeForward)) return QString();
    const QByteArray path = message.sliced(1);
    const bool asked = message.front() == ToOpen && path.startsWith('/') && !path.contains('\0');
    return asked ? std::optional(FileName(path.toStdString())) : std::nullopt;
}

}  // namespace

bool HandOver(const QString& folder, const QString& picture)
{
    const QDeadlineTimer end(std::chrono::seconds(2));
    const Descriptor place = OpenFolder(folder);
    const sockaddr_un address = AddressIn(place);
    const Descriptor socket = NewSocket();
    // One that was started just now may not listen yet.
    while (connect(socket.Number(), Plain(address), sizeof address) != 0) {
        if (end.hasExpired()) return false;
        constexpr int Pause = 20;
        poll(nullptr, 0, Pause);
    }
    const QByteArray message = picture.isEmpty()
                                   ? QByteArray(1, ComeForward)
                                   : ToOpen + QByteArray::fromStdString(FileBytes(picture));
    if (send(socket.Number(), message.data(), static_cast<std::size_t>(message.size()),
             MSG_NOSIGNAL) < 0)
        return false;
    char answer = 0;
    return WaitFor(socket, end) && recv(socket.Number(), &answer, 1, 0) == 1 && answer == Heard;
}

SecondStarts::SecondStarts(const QString& folder)
    : folder_(OpenFolder(folder)), socket_(NewSocket())
{
    constexpr int Waiting = 4;
    // A run that was killed leaves its socket behind.
    unlinkat(folder_.Number(), SocketName, 0);
    const sockaddr_un address = AddressIn(folder_);
    // For the user alone from the beginning.
    if (fchmod(socket_.Number(), S_IRUSR | S_IWUSR) != 0 ||
        bind(socket_.Number(), Plain(address), sizeof address) != 0 ||
        listen(socket_.Number(), Waiting) != 0)
        return;
    heard_ = std::make_unique<QSocketNotifier>(socket_.Number(), QSocketNotifier::Read);
    connect(heard_.get(), &QSocketNotifier::activated, this, &SecondStarts::Answer);
}

SecondStarts::~SecondStarts()
{
    StopListening();
}

void SecondStarts::StopListening()
{
    unlinkat(folder_.Number(), SocketName, 0);
    heard_.reset();
}

void SecondStarts::Answer()
{
    const Descriptor connection(
        accept4(socket_.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!connection || !IsOfThisUser(connection)) return;
    if (!WaitFor(connection, QDeadlineTimer(std::chrono::milliseconds(100)))) return;
    const std::optional<QString> picture = ReceivePath(connection);
    // Whoever has given up by now has said so to the user.
    if (picture && send(connection.Number(), &Heard, 1, MSG_NOSIGNAL) == 1) emit Called(*picture);
}

}  // namespace pixano
