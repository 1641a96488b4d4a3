// The program with an effect that fails halfway.
#pragma once

#include "canvas/captures.h"
#include "shell/spy_effect.h"
#include "support/program.h"

namespace pixano::test {

class Faults : public Program {
  protected:
    Faults() { Open("a.bmp", Drawn({"abc", "def"})); }
    ~Faults() override { SpyAction() = nullptr; }

    /// Captures, shows the progress window, paints one pixel, and then the file has an end.
    void FailHalfway(Fatal ends = Fatal::None)
    {
        SpyAction() = [](Work& w) {
            Cattura(w);
            w.ShowProgress();
            w.Avanzamento(1);
            w.Picture1.PSet(0, 0, ColourOf('x'));
            // (3 + 1) x (2 + 1) values were captured.
            for (int i = 0; i <= 12; ++i)
                w.Input();
        };
        Effect spy = Spy();
        spy.fatal = ends;
        RunInFrame(spy);
    }
    /// The files of unsaved work in the data folder.
    QStringList Conserved() const { return QDir(Data("")).entryList({"lavoro-*.bmp"}); }
};

}  // namespace pixano::test
