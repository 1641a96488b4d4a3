// What can become of a file behind the program's back.
#pragma once

#include "pictures/picture_files.h"
#include "support/temporary_folder.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/stat.h>

namespace pixano::test {

/// A file elsewhere that a link leads to: a picture as large as the one that is open. It must
/// neither be shown nor changed.
class Elsewhere {
  public:
    explicit Elsewhere(std::filesystem::path path)
        : path_(std::move(path)), picture_(8, 6, 0x123456)
    {
        SaveBitmap(picture_, path_);
        bytes_ = Bytes();
    }
    const std::filesystem::path& Path() const { return path_; }
    const Surface& Picture() const { return picture_; }
    bool Untouched() const { return Bytes() == bytes_; }

  private:
    std::string Bytes() const { return BytesOf(path_); }

    std::filesystem::path path_;
    Surface picture_;
    std::string bytes_;
};

struct Tampering {
    const char* name;
    void (*with)(const std::filesystem::path& file, const Elsewhere& elsewhere);
};

namespace tampering {

inline void Put(const std::filesystem::path& file, const std::string& bytes)
{
    std::filesystem::remove_all(file);
    std::ofstream(file, std::ios::binary) << bytes;
}

inline void Missing(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    std::filesystem::remove_all(file);
}
inline void Empty(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    Put(file, "");
}
inline void CutShort(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    if (!std::filesystem::exists(file)) Put(file, "BM");
    std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
}
inline void Swapped(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    Put(file, "\"parole\"\r\ne altre parole\r\n");
}
inline void OtherPicture(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    std::filesystem::remove_all(file);
    SaveBitmap(Surface(31, 17, 0x00FF00), file);
}
inline void Folder(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    std::filesystem::remove_all(file);
    std::filesystem::create_directory(file);
}
inline void Link(const std::filesystem::path& file, const Elsewhere& elsewhere)
{
    std::filesystem::remove_all(file);
    std::filesystem::create_symlink(elsewhere.Path(), file);
}
inline void DeadLink(const std::filesystem::path& file, const Elsewhere& elsewhere)
{
    std::filesystem::remove_all(file);
    std::filesystem::create_symlink(elsewhere.Path().string() + ".nuovo", file);
}
inline void Pipe(const std::filesystem::path& file, const Elsewhere& /*elsewhere*/)
{
    std::filesystem::remove_all(file);
    mkfifo(file.c_str(), 0600);
}

}  // namespace tampering

inline constexpr std::array Tamperings{
    Tampering{"missing", tampering::Missing},
    Tampering{"empty", tampering::Empty},
    Tampering{"cut_short", tampering::CutShort},
    Tampering{"swapped", tampering::Swapped},
    Tampering{"other_picture", tampering::OtherPicture},
    Tampering{"folder", tampering::Folder},
    Tampering{"link", tampering::Link},
    Tampering{"dead_link", tampering::DeadLink},
    Tampering{"pipe", tampering::Pipe},
};

}  // namespace pixano::test
