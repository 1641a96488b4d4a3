#include "document/places.h"

#include "files/refusal.h"
#include "windows/file_names.h"

#include <QStandardPaths>

#include <filesystem>

namespace pixano {

namespace fs = std::filesystem;

QString DataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString MakeDataFolder()
{
    QString folder = DataFolder();
    const std::string path = FileBytes(folder);
    std::error_code error;
    TellRefusal("creare la cartella", path, [&] {
        fs::create_directories(path, error);
        if (error) throw Refusal(error.value());
    });
    // Somebody may have made it before, open to all.
    const bool open =
        (fs::status(path, error).permissions() & ~fs::perms::owner_all) != fs::perms::none;
    if (open) fs::permissions(path, fs::perms::owner_all, error);
    return folder;
}

QString NativePath(const QString& name)
{
    static const QString drive = QStringLiteral("c:\\");
    if (!name.startsWith(drive, Qt::CaseInsensitive)) return AbsolutePath(name);
    return DataFolder() + '/' + name.mid(drive.size());
}

}  // namespace pixano
