// The program's questions and messages as real boxes and file dialogs on the screen.
#pragma once

#include "windows/dialogs.h"

namespace pixano {

class ScreenDialogs : public Dialogs {
  public:
    bool Ask(BoxIcon icon, const QString& title, const QString& text) override;
    void Tell(BoxIcon icon, const QString& title, const QString& text) override;
    std::optional<QString> AskOpenName(const QString& folder) override;
    std::optional<QString> AskSaveName(const QString& folder, const QString& name) override;
};

}  // namespace pixano
