// Steps in a picture's history. "abc" becomes "cba" by "Specchio" (A), then "~ab" by "Capovolgi"
// (B).
#pragma once

#include "support/program.h"

namespace pixano::test {

class HistoryCommands : public Program {
  protected:
    HistoryCommands() { Open("a.bmp", Drawn({"abc"})); }

    void A() { Apply("Specchio"); }
    void B() { Apply("Capovolgi"); }
    void Undo() { ClickEntry(entry::Undo); }
    void Redo() { ClickEntry(entry::Redo); }
    void Orig() { ClickEntry(entry::Orig); }

    /// Menu and palette alike, and "&Salva File".
    void ExpectUsable(const History& history, bool salva)
    {
        EXPECT_EQ(MenuHistory(), history);
        EXPECT_EQ(PaletteHistory(), history);
        EXPECT_EQ(Enabled(entry::Salva), salva);
    }
    void ExpectShown(const Letters& letters, const QString& caption)
    {
        EXPECT_EQ(CanvasLetters(), letters);
        EXPECT_EQ(PreviewLetters(), letters);
        EXPECT_EQ(CanvasCaption(), caption);
    }
};

}  // namespace pixano::test
