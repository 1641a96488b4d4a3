#include "document/places.h"

#include "canvas/fault.h"
#include "windows/file_names.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace pixano {

QString DataFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(folder))
        throw Fault(FaultKind::FileAccess,
                    "Impossibile creare la cartella «" + FileBytes(folder) + "»");
    // Somebody may have made it before, open to all.
    constexpr auto Private = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    constexpr auto Others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                            QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    if (QFile::permissions(folder).testAnyFlags(Others)) QFile::setPermissions(folder, Private);
    return folder;
}

QString NativePath(const QString& name)
{
    static const QString drive = QStringLiteral("c:\\");
    if (!name.startsWith(drive, Qt::CaseInsensitive)) return AbsolutePath(name);
    return DataFolder() + '/' + name.mid(drive.size());
}

}  // namespace pixano
