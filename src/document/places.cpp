#include "document/places.h"

#include "canvas/fault.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace pixano {

QString DataFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const bool made = !QDir(folder).exists();
    if (!QDir().mkpath(folder)) throw Fault(FaultKind::FileAccess, folder.toStdString());
    if (made) QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

QString NativePath(const QString& name)
{
    static const QString drive = QStringLiteral("c:\\");
    if (!name.startsWith(drive, Qt::CaseInsensitive)) return name;
    return DataFolder() + '/' + name.mid(drive.size());
}

}  // namespace pixano
