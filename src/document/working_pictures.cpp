#include "document/working_pictures.h"

#include "document/places.h"
#include "files/own_file.h"
#include "files/refusal.h"
#include "pictures/picture_files.h"
#include "windows/file_names.h"

namespace pixano {

void SaveWorkingPicture(const Surface& surface, const QString& name)
{
    const QString path = NativePath(name);
    if (path.startsWith(DataFolder() + '/')) MakeDataFolder();
    WriteWorkingBitmap(surface, FileBytes(path));
}

Surface LoadWorkingPicture(const QString& name, const Surface& like)
{
    const std::string path = FileBytes(NativePath(name));
    PictureRead read = ReadWorkingPicture(path);
    const bool ours = !read.truncated && read.picture.Width() == like.Width() &&
                      read.picture.Height() == like.Height();
    if (!ours)
        throw Fault(FaultKind::FileAccess,
                    "Il file «" + path + "» non è più quello che Pixano ha scritto");
    return std::move(read.picture);
}

void KillWorkingPicture(const QString& name)
{
    const std::string path = FileBytes(NativePath(name));
    try {
        TellRefusal("eliminare", path, [&] { DeleteOwnFile(path); });
    } catch (const Fault& fault) {
        if (fault.Kind() != FaultKind::FileNotFound) throw;
    }
}

}  // namespace pixano
