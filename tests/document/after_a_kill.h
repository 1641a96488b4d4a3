// The start after a run that was killed with unsaved work.
#pragma once

#include "document/recovery.h"
#include "support/program.h"

namespace pixano::test {

/// "abc" became "cba", then "~ab"; then the run was killed.
class AfterAKill : public UnstartedProgram {
  protected:
    /// Leaves the folders as after these commands: a, b the effects, u "Annulla".
    void Kill(const char* commands = "ab")
    {
        StartedDesk killed;
        killed.Open(Made("a.bmp", Drawn({"abc"})));
        for (const char* command = commands; *command != '\0'; ++command)
            *command == 'u' ? killed.ClickEntry(entry::Undo)
                            : killed.Apply(*command == 'a' ? "Specchio" : "Capovolgi");
    }
    /// The next start.
    void Offer()
    {
        OnceStartUpPictureIsUp(ClickAway);
        RunCommand(session, "Avvio", Fatal::All, [&] {
            Form_Load(session);
            OfferRecovery(session);
        });
    }
};

}  // namespace pixano::test
