// Everything that the program asks the user or tells him in a box of its own. An interface, so that
// tests can answer.
#pragma once

#include <QString>

#include <optional>

namespace pixano {

enum class BoxIcon { None, Question, Exclamation, Critical };

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A yes/no message box. True for yes.
    virtual bool Ask(BoxIcon icon, const QString& title, const QString& text) = 0;
    /// A message box that only tells something.
    virtual void Tell(BoxIcon icon, const QString& title, const QString& text) = 0;

    /// The open dialog in `folder`; the path chosen or typed, nothing when cancelled.
    virtual std::optional<QString> AskOpenName(const QString& folder) = 0;
    /// The save dialog in `folder`, with `name` for a start, which may be empty; the path chosen or
    /// typed with the default extension, nothing when cancelled.
    virtual std::optional<QString> AskSaveName(const QString& folder, const QString& name) = 0;
};

/// Titles of the message boxes.
namespace title {
inline const QString Message = QStringLiteral("Messaggio!");
inline const QString Notice = QStringLiteral("Avviso!");
inline const QString Warning = QStringLiteral("Attenzione!");
}  // namespace title

}  // namespace pixano
