// Where the windows of a picture stand that the start has brought back.
#include "document/recovery.h"
#include "document/recovery_note.h"
#include "screen/desktop.h"
#include "shell/run.h"

namespace pixano::test {
namespace {

using BroughtBack = Desktop;

// The preview is placed and made larger at once.
TEST_F(BroughtBack, HasItsPreviewInItsCorner)
{
    const QString copy = Made("elabor.tmp", Varied(640, 480));
    WriteRecoveryNote({copy, Made("a.bmp", Varied(640, 480)), 640, 480});
    dialogs.answers = {true};
    RunCommand(session, "Recupero", Fatal::None, [this] { OfferRecovery(session); });
    WaitForWindows();
    EXPECT_TRUE(StaysOnceAnswered([this] { return !session.form9.MovedByUser(); }));
    const int bottom = session.form9.frameGeometry().bottom();
    EXPECT_LE(bottom, session.form9.screen()->availableGeometry().bottom());
    dialogs.answers = {false};
    OpenSized(40, 30);
    EXPECT_TRUE(Stays([&] { return session.form9.frameGeometry().bottom() >= bottom - 2; }))
        << session.form9.frameGeometry().bottom();
}

}  // namespace
}  // namespace pixano::test
