// The command line of the windowed program.
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>

namespace pixano {

struct Options {
    QString picture;        ///< path of the picture to be opened; empty for none
    bool fromMenu = false;  ///< started from the desktop's menu
};

/// How the program is called, in Italian.
extern const char* const UsageText;

/// The answer to "--aiuto" or "--versione", if one of them stands before a "--"; nullptr otherwise.
const char* AnswerWithoutScreen(int argc, const char* const argv[]);

/// The arguments as text, none of their bytes lost.
QStringList ArgumentsOf(int argc, const char* const argv[]);

/// Whether neither the environment nor an argument names a screen or a platform to show windows on.
bool ScreenIsMissing(const QStringList& arguments);

/// Whether the windows are to go by way of X: there, unlike under Wayland, they can place, raise
/// and activate themselves. Only where X is to be had, and nobody has asked for another platform.
bool PrefersX(const QStringList& arguments);

/// Arguments that cannot be understood. `what()` is an Italian sentence without a full stop, which
/// starts in lower case.
class WrongArguments : public std::runtime_error {
  public:
    explicit WrongArguments(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// The options in the arguments, the program's name first. The picture may be given as a file URL.
/// Throws WrongArguments.
Options OptionsFrom(const QStringList& arguments);

}  // namespace pixano
