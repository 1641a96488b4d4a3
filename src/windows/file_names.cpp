#include "windows/file_names.h"

#include <QSysInfo>

#include <array>
#include <cerrno>
#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace pixano {
namespace {

constexpr char16_t FirstEscape = 0xDC00;

/// The character that the bytes begin with, and how many they are; empty where they are no UTF-8.
std::pair<QString, std::size_t> FirstCharacter(std::string_view bytes)
{
    constexpr std::size_t LongestCharacter = 4;
    for (std::size_t length = 1; length <= std::min(LongestCharacter, bytes.size()); ++length) {
        const QByteArrayView piece(bytes.substr(0, length));
        QString text = QString::fromUtf8(piece);
        if (text.toUtf8() == piece) return {std::move(text), length};
    }
    return {};
}

/// Some programs name the machine whose file they hand over.
bool IsThisMachine(const QString& host)
{
    return host.isEmpty() || host == "localhost" ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

}  // namespace

QString FileName(std::string_view bytes)
{
    QString whole = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (!whole.contains(QChar::ReplacementCharacter)) return whole;
    QString name;
    while (!bytes.empty()) {
        const auto [text, length] = FirstCharacter(bytes);
        if (length > 0)
            name += text;
        else
            name += QChar(FirstEscape | static_cast<unsigned char>(bytes.front()));
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return name;
}

std::string FileBytes(const QString& name)
{
    std::string bytes;
    qsizetype done = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool paired = i > 0 && name.at(i - 1).isHighSurrogate();
        if (!name.at(i).isLowSurrogate() || paired) continue;
        bytes += QStringView(name).sliced(done, i - done).toUtf8().toStdString();
        bytes += static_cast<char>(name.at(i).unicode() & 0xFF);
        done = i + 1;
    }
    return bytes + QStringView(name).sliced(done).toUtf8().toStdString();
}

QString LocalFile(const QUrl& url)
{
    if (!url.isLocalFile() || !IsThisMachine(url.host())) return url.toLocalFile();
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return FileName(QByteArray::fromPercentEncoding(encoded).toStdString());
}

bool FileExists(const QString& name)
{
    struct stat status = {};
    if (stat(FileBytes(name).c_str(), &status) == 0) return true;
    // Whatever else the system answers, there may be one.
    return errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG;
}

QString CurrentFolder()
{
    std::array<char, PATH_MAX> path{};
    return getcwd(path.data(), path.size()) != nullptr ? FileName(path.data()) : QString();
}

QString AbsolutePath(const QString& name)
{
    if (name.startsWith('/')) return name;
    // A folder that was deleted has no path any more; the root is not in its place.
    const QString folder = CurrentFolder();
    return (folder.isEmpty() ? QString('.') : folder) + '/' + name;
}

void GoToFolder(const QString& name)
{
    // Where the folder is gone there is no other to go to.
    [[maybe_unused]] const int result = chdir(FileBytes(name).c_str());
}

}  // namespace pixano
