// The program with five strengths in a "valori.tip" beside it, and its slider window.
#pragma once

#include "panels/asked.h"
#include "support/program.h"
#include "support/values.h"

#include <QLabel>
#include <QSlider>

#include <functional>
#include <string>

namespace pixano::test {

class StrengthsInUse : public Program {
  protected:
    StrengthsInUse()
    {
        Ship("valori.tip", "1000\r\n2000\r\n3000\r\n4000\r\n4500\r\n");
        Open("a.bmp", Varied(9, 7));
    }

    /// Presses "Vetro" and does something in the slider window.
    void PressVetro(const std::function<void(QWidget&)>& act) { Ask("SSCommand6", act); }
    void Ask(const char* button, const std::function<void(QWidget&)>& act)
    {
        WhileAsked(act);
        ClickButton(session.form10, button);
    }

    static QSlider& SliderIn(const QWidget& window)
    {
        return *window.findChild<QSlider*>("Slider1");
    }
    static std::string LabelIn(const QWidget& window)
    {
        return window.findChild<QLabel*>("Label1")->text().toStdString();
    }
    static void Confirm(const QWidget& window) { ClickButton(window, "Command1"); }
    static void Cancel(const QWidget& window) { ClickButton(window, "Command2"); }

    /// The opened picture after "Vetro" with that strength.
    static Values VetroOf(double strength)
    {
        EffectRun run(Varied(9, 7));
        run.work.IndValore = 3;
        run.work.Valori.at(3) = strength;
        run.Apply(*FindEffect("Vetro"));
        return ValuesOf(run.work.Picture1);
    }
    bool CanvasIs(const Values& values) const { return ValuesOf(Canvas()) == values; }
};

}  // namespace pixano::test
