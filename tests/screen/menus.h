// Menus opened and closed by real keys.
#pragma once

#include "screen/desktop.h"

#include <QMenu>
#include <QMenuBar>

namespace pixano::test {

class MenusAtHand : public Desktop {
  protected:
    bool IsOpen(const char* menu) const
    {
        return session.form1.findChild<QMenu*>(menu)->isVisible();
    }
    /// No window takes the focus back any more.
    void LetTheFocusSettle() const
    {
        EXPECT_TRUE(Stays(
            [this] { return !FocusIsKeptFrom(session.form2) && !FocusIsKeptFrom(session.form9); }));
    }
    void CloseMenus()
    {
        Do("key Escape");
        EXPECT_TRUE(ComesToHold([] { return QApplication::activePopupWidget() == nullptr; }));
        if (session.form1.menuBar()->hasFocus()) Do("key Escape");
        EXPECT_TRUE(ComesToHold([this] { return !session.form1.menuBar()->hasFocus(); }));
    }
};

}  // namespace pixano::test
