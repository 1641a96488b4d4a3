#include "document/working_pictures.h"

#include "canvas/fault.h"
#include "document/places.h"
#include "pictures/picture_files.h"

#include <QFileInfo>

#include <cerrno>

#include <unistd.h>

namespace pixano {

void SaveWorkingPicture(const Surface& surface, const QString& name)
{
    try {
        WriteWorkingBitmap(surface, NativePath(name).toStdString());
    } catch (const PictureError& error) {
        throw Fault(FaultKind::FileAccess, error.what());
    }
}

Surface LoadWorkingPicture(const QString& name, const Surface& like)
{
    const QString path = NativePath(name);
    if (!QFileInfo::exists(path)) throw Fault(FaultKind::FileNotFound, path.toStdString());
    try {
        PictureRead read = ReadWorkingPicture(path.toStdString());
        const bool ours = !read.truncated && read.picture.Width() == like.Width() &&
                          read.picture.Height() == like.Height();
        if (ours) return std::move(read.picture);
    } catch (const PictureError& error) {
        throw Fault(FaultKind::FileAccess, error.what());
    }
    throw Fault(FaultKind::FileAccess, path.toStdString());
}

void KillWorkingPicture(const QString& name)
{
    const QString path = NativePath(name);
    // A folder is not the program's own, whatever it is called and however empty it is.
    if (unlink(path.toStdString().c_str()) != 0 && errno != ENOENT)
        throw Fault(FaultKind::FileAccess, path.toStdString());
}

}  // namespace pixano
