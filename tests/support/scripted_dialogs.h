// A user who answers the program's questions as the test has written down.
#pragma once

#include "windows/dialogs.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <ostream>
#include <vector>

QT_BEGIN_NAMESPACE
/// Lets a failed comparison show the text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace pixano::test {

/// One message box as it was shown.
struct ShownBox {
    BoxIcon icon;
    QString title;
    QString text;

    friend bool operator==(const ShownBox&, const ShownBox&) = default;
    friend std::ostream& operator<<(std::ostream& out, const ShownBox& box)
    {
        return out << static_cast<int>(box.icon) << " [" << box.title.toStdString() << "] "
                   << box.text.toStdString();
    }
};

/// Takes the answers in order; a question without an answer is a failure of the test.
class ScriptedDialogs : public Dialogs {
  public:
    bool Ask(BoxIcon icon, const QString& title, const QString& text) override
    {
        asked.push_back({icon, title, text});
        meanwhile();
        return Next(answers, false);
    }
    void Tell(BoxIcon icon, const QString& title, const QString& text) override
    {
        told.push_back({icon, title, text});
        meanwhile();
    }
    std::optional<QString> AskOpenName(const QString& folder) override
    {
        openFolders.push_back(folder);
        meanwhile();
        return Next(openNames, std::optional<QString>());
    }
    std::optional<QString> AskSaveName(const QString& folder, const QString& name) override
    {
        saveFolders.push_back(folder);
        saveBeginnings.push_back(name);
        meanwhile();
        return Next(saveNames, std::optional<QString>());
    }

    /// What happens while a box or dialog is open.
    std::function<void()> meanwhile = [] {};

    std::deque<bool> answers;
    /// Nothing stands for a cancelled dialog.
    std::deque<std::optional<QString>> openNames;
    std::deque<std::optional<QString>> saveNames;

    std::vector<ShownBox> asked;
    std::vector<ShownBox> told;
    std::vector<QString> openFolders;
    std::vector<QString> saveFolders;
    /// The names that stood in the save dialog.
    std::vector<QString> saveBeginnings;

  private:
    template <typename T>
    static T Next(std::deque<T>& from, T otherwise)
    {
        if (from.empty()) {
            ADD_FAILURE() << "the program asked something that the test did not expect";
            return otherwise;
        }
        std::swap(otherwise, from.front());
        from.pop_front();
        return otherwise;
    }
};

}  // namespace pixano::test
