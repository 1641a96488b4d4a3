// The whole run of the program, from its options to its end.
#pragma once

#include "shell/program.h"
#include "support/program.h"

namespace pixano::test {

class Starting : public SessionInFolders {
  protected:
    Starting() { Ship("valori.tip", "1000\r\n2000\r\n3000\r\n4000\r\n5000\r\n"); }

    /// Runs the program with these arguments to its end; `then` is done once it waits for the user.
    int RunWith(const QStringList& arguments, const std::function<void()>& then = Nothing)
    {
        OnceStartUpPictureIsUp([this, then](QWidget& window) {
            ClickAway(window);
            OnceIdle([this, then] {
                then();
                session.form1.close();
            });
        });
        return RunAsOnlyInstance(session, OptionsFrom(QStringList{"pixano"} + arguments));
    }
    /// Leaves the folders as a run does that is killed when "abc" has become "cba".
    void KillWithUnsavedWork() const
    {
        StartedDesk killed;
        killed.Open(Made("a.bmp", Drawn({"abc"})));
        killed.Apply("Specchio");
    }

  private:
    static void Nothing() {}
    void OnceIdle(const std::function<void()>& then)
    {
        QTimer::singleShot(0, [this, then] { session.busy ? OnceIdle(then) : then(); });
    }
};

}  // namespace pixano::test
