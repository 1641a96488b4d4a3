// Every kind of work on a file, failing in every way that a system knows: one Italian sentence,
// which names the file with its folder, and why.
#include "document/places.h"
#include "document/recovery_note.h"
#include "document/working_pictures.h"
#include "files/strengths_file.h"
#include "files/text_store.h"
#include "reliability/preload/failing_calls.h"
#include "shell/only_instance.h"
#include "support/program.h"

#include <climits>

namespace pixano::test {
namespace {

struct FileWork {
    const char* name;
    const char* verb;
    void (*does)();
};

std::string Here(const char* name)
{
    return Folders::Path(name).toStdString();
}

void Measure(bool writes)
{
    PixelFile pixels(TextStore("elab.ser"));
    if (writes) {
        pixels.OpenForOutput();
        pixels.Write(Colour{7});
        pixels.Close();
    } else {
        pixels.Input();
    }
}

constexpr FileWork Works[] = {
    {"open a picture", "leggere", [] { ReadPicture(Here("a.bmp")); }},
    {"read a working picture", "leggere",
     [] { LoadWorkingPicture(QString::fromStdString(Here("a.bmp")), Surface(3, 1)); }},
    {"save a picture", "salvare", [] { SaveBitmap(Surface(3, 1), Here("s.bmp")); }},
    {"save a working picture", "salvare", [] { SaveWorkingPicture(Surface(3, 1), "elabor.tmp"); }},
    {"delete a working picture", "eliminare",
     [] { KillWorkingPicture(QString::fromStdString(Here("a.bmp"))); }},
    {"read the strengths", "leggere",
     [] {
         Strengths strengths{};
         LeggiValori(Here("valori.tip"), strengths);
     }},
    {"write the strengths", "salvare", [] { SalvaValori(Here("valori.tip"), {}); }},
    {"write the pixels", "scrivere", [] { Measure(true); }},
    {"read the pixels", "leggere", [] { Measure(false); }},
    {"make the data folder", "creare la cartella", [] { MakeDataFolder(); }},
    {"note the copy", "(scrivere|creare la cartella)", [] { WriteRecoveryNote(RecoveryNote{}); }},
    {"hold the lock", "usare", [] { const OnlyInstance lock(Folders::Path("pixano.lock")); }},
};

class Message : public testing::TestWithParam<FileWork> {};

TEST_P(Message, IsOneSentenceThatNamesTheFileItsFolderAndTheReason)
{
    const Folders folders;
    int told = 0;
    for (const int error : {ENOSPC, EACCES, EPERM, EIO, EMFILE, ENFILE, EDQUOT, EFBIG, EROFS,
                            ENOMEM, EISDIR, ENOTDIR, ELOOP, ENAMETOOLONG, EBADF}) {
        for (long call = 1; call <= 12; ++call) {
            SaveBitmap(Surface(3, 1), Here("a.bmp"));
            WriteBytes(Here("valori.tip"), "1\r\n2\r\n3\r\n4\r\n5\r\n");
            WriteBytes(Here("elab.ser"), "7\r\n");
            QDir(DataFolder()).removeRecursively();
            BeginToFail({.first = call, .last = LONG_MAX, .error = error, .only = Everything});
            std::string text;
            try {
                GetParam().does();
            } catch (const Fault& fault) {
                text = fault.what();
            }
            EndFailing();
            if (text.empty()) continue;
            ++told;
            EXPECT_THAT(text, testing::MatchesRegex("Impossibile " + std::string(GetParam().verb) +
                                                    " «/[^»]*»: [a-zè][^.«»]*[^.«»]"));
            EXPECT_EQ(text.find("segnala l'errore"), std::string::npos) << text;
        }
    }
    EXPECT_GE(told, 15);
}

std::string NameOfWork(const testing::TestParamInfo<FileWork>& info)
{
    std::string name = info.param.name;
    std::ranges::replace(name, ' ', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Each, Message, testing::ValuesIn(Works), NameOfWork);

}  // namespace
}  // namespace pixano::test
