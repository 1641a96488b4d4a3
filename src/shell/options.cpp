#include "shell/options.h"

#include "version.h"
#include "windows/file_names.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace pixano {
namespace {

/// A file URL as a path; everything else as it is.
QString PathOf(const QString& argument)
{
    if (!argument.startsWith("file:", Qt::CaseInsensitive)) return argument;
    // A byte above ASCII has no place in a URL as it is.
    QByteArray encoded;
    for (const char byte : FileBytes(argument)) {
        const QByteArray one(1, byte);
        encoded += static_cast<unsigned char>(byte) < 0x80 ? one : one.toPercentEncoding();
    }
    const QUrl url = QUrl::fromEncoded(encoded);
    return url.isLocalFile() ? LocalFile(url) : argument;
}

bool ContainsAny(const QStringList& arguments, std::initializer_list<const char*> names)
{
    return std::ranges::any_of(names,
                               [&arguments](const char* name) { return arguments.contains(name); });
}

}  // namespace

const char* const UsageText = "Uso: pixano [--da-menu] [--] [IMMAGINE]\n"
                              "\n"
                              "Applica effetti particolari a immagini BMP, JPEG e GIF.\n"
                              "\n"
                              "  IMMAGINE     l'immagine da aprire (anche come URL file:)\n"
                              "  --da-menu    lavora nella cartella dei dati dell'utente\n"
                              "  --aiuto      mostra questo testo (anche --help, -h)\n"
                              "  --versione   mostra la versione (anche --version)\n"
                              "  --           quello che segue è il nome dell'immagine\n";

const char* AnswerWithoutScreen(int argc, const char* const argv[])
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--") break;
        if (argument == "--aiuto" || argument == "--help" || argument == "-h") return UsageText;
        if (argument == "--versione" || argument == "--version") return VersionLine;
    }
    return nullptr;
}

bool ScreenIsMissing(const QStringList& arguments)
{
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return false;
    return !ContainsAny(arguments, {"-platform", "--platform", "-display", "--display"});
}

bool PrefersX(const QStringList& arguments)
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
           !ContainsAny(arguments, {"-platform", "--platform"});
}

QStringList ArgumentsOf(int argc, const char* const argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += FileName(argv[i]);
    return arguments;
}

Options OptionsFrom(const QStringList& arguments)
{
    Options options;
    bool namesOnly = false;
    for (const QString& argument : arguments.mid(1)) {
        if (!namesOnly && argument == "--") {
            namesOnly = true;
        } else if (!namesOnly && argument == "--da-menu") {
            options.fromMenu = true;
        } else if (!namesOnly && argument.startsWith('-')) {
            throw WrongArguments("opzione sconosciuta: «" + argument + "»");
        } else if (!options.picture.isEmpty()) {
            throw WrongArguments("si apre una sola immagine alla volta, e «" + argument +
                                 "» è di troppo");
        } else {
            options.picture = PathOf(argument);
        }
    }
    return options;
}

}  // namespace pixano
