// Opening files: what is no regular file is refused, and nothing waits.
#include "pictures/bmp_maker.h"
#include "pictures/byte_files.h"

#include <gmock/gmock-matchers.h>

#include <malloc.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace pixano::test {
namespace {

using testing::HasSubstr;

const Bytes OnePixel = Bmp({}, {}, {3, 2, 1, 0});

template <class Read>
std::string RefusalOf(Read read, const std::string& path)
{
    try {
        read(path);
    } catch (const PictureError& error) {
        return error.what();
    }
    return {};
}

std::string RefusalOf(const std::string& path)
{
    const std::string refusal = RefusalOf(ReadPicture, path);
    EXPECT_THAT(refusal, HasSubstr("Impossibile leggere «" + path + "»: "));
    return refusal;
}

class Reading : public testing::Test {
  protected:
    TemporaryFolder folder;
};

TEST_F(Reading, TheContentTellsTheFormatNotTheName)
{
    const std::string path = folder / "figura.txt";
    WriteFile(path, OnePixel);
    EXPECT_EQ(ReadPicture(path).picture, Surface(1, 1, Rgb(1, 2, 3)));
}

TEST_F(Reading, NamesInUtf8WithBlanks)
{
    const std::string path = folder / "perché no «così».bmp";
    WriteFile(path, OnePixel);
    EXPECT_EQ(ReadPicture(path).picture.Width(), 1);
}

TEST_F(Reading, WhatIsNotThere)
{
    EXPECT_THAT(RefusalOf(folder / "manca.bmp"), HasSubstr("il file non esiste"));
    EXPECT_THAT(RefusalOf(folder / "manca/figura.bmp"), HasSubstr("il file non esiste"));
    EXPECT_THAT(RefusalOf(""), HasSubstr("il file non esiste"));
    EXPECT_THAT(RefusalOf(folder / std::string(300, 'n')), HasSubstr("il nome è troppo lungo"));
    WriteFile(folder / "file", OnePixel);
    EXPECT_THAT(RefusalOf(folder / "file/figura.bmp"), HasSubstr("non è una cartella"));
}

TEST_F(Reading, AnEmptyFile)
{
    WriteFile(folder / "vuoto.bmp", {});
    EXPECT_THAT(RefusalOf(folder / "vuoto.bmp"), HasSubstr("il file è vuoto"));
}

TEST_F(Reading, FoldersPipesSocketsAndDevices)
{
    EXPECT_THAT(RefusalOf(folder.Path()), HasSubstr("è una cartella"));
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THAT(RefusalOf(folder / "pipe"), HasSubstr("è una pipe"));
    EXPECT_THAT(RefusalOf("/dev/zero"), HasSubstr("è un dispositivo"));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (folder / "socket").copy(address.sun_path, sizeof address.sun_path - 1);
    const int socketDescriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(socketDescriptor, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_THAT(RefusalOf(folder / "socket"), HasSubstr("è un socket"));
    close(socketDescriptor);
}

TEST_F(Reading, Links)
{
    WriteFile(folder / "vera.bmp", OnePixel);
    ASSERT_EQ(symlink("vera.bmp", (folder / "buono").c_str()), 0);
    ASSERT_EQ(symlink("manca.bmp", (folder / "rotto").c_str()), 0);
    ASSERT_EQ(symlink("giro", (folder / "giro").c_str()), 0);
    ASSERT_EQ(symlink("/dev/zero", (folder / "zero").c_str()), 0);
    EXPECT_EQ(ReadPicture(folder / "buono").picture.Width(), 1);
    EXPECT_THAT(RefusalOf(folder / "rotto"), HasSubstr("porta a un file che non esiste"));
    EXPECT_THAT(RefusalOf(folder / "giro"), HasSubstr("non portano a nessun file"));
    EXPECT_THAT(RefusalOf(folder / "zero"), HasSubstr("è un dispositivo"));
}

TEST_F(Reading, AWorkingPictureIsNoLink)
{
    WriteFile(folder / "vera.bmp", OnePixel);
    ASSERT_EQ(symlink("vera.bmp", (folder / "legata.bmp").c_str()), 0);
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadWorkingPicture(folder / "vera.bmp").picture, Surface(1, 1, Rgb(1, 2, 3)));
    EXPECT_THAT(RefusalOf(ReadWorkingPicture, folder / "legata.bmp"),
                HasSubstr("è un collegamento"));
    EXPECT_THAT(RefusalOf(ReadWorkingPicture, folder / "pipe"), HasSubstr("è una pipe"));
    EXPECT_THAT(RefusalOf(ReadWorkingPicture, folder / "manca"), HasSubstr("il file non esiste"));
}

TEST_F(Reading, OtherContentIsNamed)
{
    WriteFile(folder / "testo.bmp", Bytes().Add("niente di che"));
    EXPECT_EQ(RefusalOf(folder / "testo.bmp"), "Impossibile leggere «" + (folder / "testo.bmp") +
                                                   "»: non è un'immagine BMP, JPEG o GIF");
}

TEST_F(Reading, MemoryLeftByOthersDoesNotShow)
{
    // A cut picture and one with skipped pixels, read over memory filled in two ways.
    const Bytes cut = Bmp({.width = 40, .height = 40}, {}, Bytes().Zeros(400));
    const Bytes skipped = Bmp({.width = 9, .height = 9, .bits = 8, .compression = 1}, {}, {0, 1});
    mallopt(M_PERTURB, 0x11);
    const PictureRead first = cut.Read();
    const PictureRead firstSkipped = skipped.Read();
    mallopt(M_PERTURB, 0xEE);
    EXPECT_EQ(cut.Read().picture, first.picture);
    EXPECT_EQ(skipped.Read().picture, firstSkipped.picture);
    mallopt(M_PERTURB, 0);
    EXPECT_EQ(firstSkipped.picture, Surface(9, 9));
}

}  // namespace
}  // namespace pixano::test
