// The command line of the windowed program: what is understood.
#include "shell/options.h"
#include "windows/file_names.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <vector>

namespace pixano::test {
namespace {

Options Parsed(const QStringList& arguments)
{
    return OptionsFrom(QStringList{"pixano"} + arguments);
}

/// The picture that these arguments name.
std::string PictureIn(const QStringList& arguments)
{
    return Parsed(arguments).picture.toStdString();
}

/// Why these arguments are not understood; nothing when they are.
std::string WrongIn(const QStringList& arguments)
{
    try {
        Parsed(arguments);
        return {};
    } catch (const WrongArguments& wrong) {
        return wrong.what();
    }
}

const char* Answer(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "pixano");
    return AnswerWithoutScreen(static_cast<int>(arguments.size()), arguments.data());
}

TEST(ProgramOptions, NameNoPictureWhenThereAreNone)
{
    const Options options = Parsed({});
    EXPECT_TRUE(options.picture.isEmpty());
    EXPECT_FALSE(options.fromMenu);
}

TEST(ProgramOptions, TakeAPathAsItIs)
{
    EXPECT_EQ(PictureIn({"/tmp/due parole 50%25.bmp"}), "/tmp/due parole 50%25.bmp");
    EXPECT_EQ(PictureIn({"foto.jpg"}), "foto.jpg");
}

TEST(ProgramOptions, TakeAFileUrlForAPath)
{
    EXPECT_EQ(PictureIn({"file:///tmp/due%20parole%20perch%C3%A9.bmp"}),
              "/tmp/due parole perch\xC3\xA9.bmp");
    EXPECT_EQ(PictureIn({"FILE:///tmp/a.bmp"}), "/tmp/a.bmp");
}

TEST(ProgramOptions, LoseNoByteOfAName)
{
    for (const auto& [argument, picture] :
         {std::pair("/tmp/perch\xE8 \xC3\xA9.bmp", "/tmp/perch\xE8 \xC3\xA9.bmp"),
          {"file:///tmp/perch%E8%20%C3%A9.bmp", "/tmp/perch\xE8 \xC3\xA9.bmp"},
          {"file:///tmp/perch\xE8 \xC3\xA9.bmp", "/tmp/perch\xE8 \xC3\xA9.bmp"},
          // The lowest byte that is no letter of its own, and the highest that is.
          {"file:///tmp/\x80 \x7F.bmp", "/tmp/\x80 \x7F.bmp"}}) {
        const std::array arguments{"pixano", "--", argument};
        EXPECT_EQ(FileBytes(OptionsFrom(ArgumentsOf(3, arguments.data())).picture), picture);
    }
}

TEST(ProgramOptions, TakeEveryOtherAddressForAName)
{
    EXPECT_EQ(PictureIn({"https://example.org/a.bmp"}), "https://example.org/a.bmp");
}

TEST(ProgramOptions, TellAStartFromTheMenu)
{
    const Options options = Parsed({"--da-menu", "a.bmp"});
    EXPECT_TRUE(options.fromMenu);
    EXPECT_EQ(options.picture, "a.bmp");
    EXPECT_TRUE(Parsed({"a.bmp", "--da-menu"}).fromMenu);
}

TEST(ProgramOptions, TakeWhatFollowsTwoDashesForAName)
{
    EXPECT_EQ(PictureIn({"--", "-a.bmp"}), "-a.bmp");
    EXPECT_EQ(PictureIn({"--", "--da-menu"}), "--da-menu");
    EXPECT_FALSE(Parsed({"--", "--da-menu"}).fromMenu);
    EXPECT_EQ(Answer({"--", "--aiuto"}), nullptr);
}

TEST(ProgramOptions, SayWhatIsNotUnderstoodWhenUnknownOrTooMany)
{
    const std::string unknown = "opzione sconosciuta: «";
    const std::string tooMany = "si apre una sola immagine alla volta, e «";
    for (const auto& [arguments, why] :
         {std::pair(QStringList{"--sbagliata"}, unknown + "--sbagliata»"),
          {{"-x"}, unknown + "-x»"},
          {{"-"}, unknown + "-»"},
          {{"a.bmp", "--sbagliata"}, unknown + "--sbagliata»"},
          {{"a.bmp", "b.bmp", "c.bmp"}, tooMany + "b.bmp» è di troppo"},
          {{"--", "a.bmp", "--"}, tooMany + "--» è di troppo"}})
        EXPECT_EQ(WrongIn(arguments), why);
}

TEST(ProgramOptions, AreAnsweredWithoutAScreenWhereTheyOnlyAsk)
{
    for (const char* const asking : {"--aiuto", "--help", "-h"}) {
        EXPECT_STREQ(Answer({asking}), UsageText) << asking;
        EXPECT_STREQ(Answer({"a.bmp", asking}), UsageText) << asking;
    }
    for (const char* const asking : {"--versione", "--version"})
        EXPECT_STREQ(Answer({asking}), "Pixano 2.3\n") << asking;
    EXPECT_EQ(Answer({"a.bmp"}), nullptr);
    EXPECT_EQ(Answer({}), nullptr);
}

TEST(ProgramOptions, AreExplainedInTheUsageText)
{
    EXPECT_STREQ(UsageText, "Uso: pixano [--da-menu] [--] [IMMAGINE]\n\n"
                            "Applica effetti particolari a immagini BMP, JPEG e GIF.\n\n"
                            "  IMMAGINE     l'immagine da aprire (anche come URL file:)\n"
                            "  --da-menu    lavora nella cartella dei dati dell'utente\n"
                            "  --aiuto      mostra questo testo (anche --help, -h)\n"
                            "  --versione   mostra la versione (anche --version)\n"
                            "  --           quello che segue è il nome dell'immagine\n");
}

TEST(ProgramOptions, PreferXWhereItIsToBeHadAndNobodyAskedForAnotherPlatform)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QByteArray display = qgetenv("DISPLAY");
    qunsetenv("QT_QPA_PLATFORM");
    qunsetenv("DISPLAY");
    EXPECT_FALSE(PrefersX({"pixano"}));
    qputenv("DISPLAY", ":7");
    EXPECT_TRUE(PrefersX({"pixano", "a.bmp"}));
    EXPECT_FALSE(PrefersX({"pixano", "-platform", "wayland"}));
    qputenv("QT_QPA_PLATFORM", platform);
    EXPECT_FALSE(PrefersX({"pixano"}));
    qputenv("DISPLAY", display);
}

TEST(ProgramOptions, NameTheScreenWhereTheEnvironmentDoesNot)
{
    const std::array variables{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    std::map<const char*, QByteArray> before;
    for (const char* const variable : variables) {
        before[variable] = qgetenv(variable);
        qunsetenv(variable);
    }
    EXPECT_TRUE(ScreenIsMissing({"pixano", "a.bmp"}));
    for (const char* const option : {"-platform", "--platform", "-display", "--display"})
        EXPECT_FALSE(ScreenIsMissing({"pixano", option, "x"})) << option;
    for (const char* const variable : variables) {
        qputenv(variable, "x");
        EXPECT_FALSE(ScreenIsMissing({"pixano"})) << variable;
        qunsetenv(variable);
    }
    for (const auto& [variable, value] : before)
        if (!value.isNull()) qputenv(variable, value);
}

}  // namespace
}  // namespace pixano::test
