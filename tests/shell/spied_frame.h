// The program with one effect that looks at it from inside the effect's frame.
#pragma once

#include "shell/spy_effect.h"
#include "support/program.h"

#include <QProgressBar>

#include <functional>
#include <vector>

namespace pixano::test {

class Frame : public Program {
  protected:
    Frame() : Program(ControlsWithSpy()) { Open("a.bmp", Drawn({"abc"})); }
    ~Frame() override { SpyAction() = nullptr; }

    void RunSpy(const std::function<void(Work&)>& action, const Effect& spy = Spy())
    {
        SpyAction() = action;
        RunInFrame(spy);
    }
    /// The entries that carry the check mark, as `Index`.
    std::vector<int> Checked() const
    {
        std::vector<int> indices;
        for (int index = 1; index <= SpyEntry; ++index) {
            const QAction& entry = session.form1.Control(index - 1);
            // One that could be marked and is not would show an empty box.
            EXPECT_EQ(entry.isCheckable(), entry.isChecked()) << index;
            if (entry.isChecked()) indices.push_back(index);
        }
        return indices;
    }
    int BarValue() { return session.form4.findChild<QProgressBar*>("ProgressBar1")->value(); }
};

}  // namespace pixano::test
