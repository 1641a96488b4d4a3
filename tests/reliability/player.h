// A user who does one thing after another at random, within what the windows let him do. Every
// command is worked out on the model first and then given to the program.
#pragma once

#include "document/session.h"
#include "reliability/model.h"
#include "support/scripted_dialogs.h"

#include <functional>
#include <random>
#include <string>

namespace pixano::test {

class Player {
  public:
    /// Makes the picture files in the current folder unless they are there. `seed`: of what the
    /// user does.
    Player(Session& session, ScriptedDialogs& dialogs, std::uint64_t seed);

    /// A command that the model has carried out already.
    struct Command {
        std::string text;
        std::function<void()> give;
    };
    Command Next();

    Model model;
    /// How many messages the program has to have told by now.
    std::size_t told = 0;
    /// A run-time error is to have ended the program.
    bool ended = false;

  private:
    enum class Saving { Saved, Cancelled, Failed };

    bool Chance(int percent) { return Number(0, 99) < percent; }
    int Number(int first, int last)
    {
        return std::uniform_int_distribution<int>(first, last)(random_);
    }
    std::string Path(const std::string& name) const;
    void MakePictures();
    void ReadPictures();

    Command OpenSomething();
    std::string ChosenName();
    /// `asked`: what is to become of the changes.
    void ModelOpened(const std::string& name, bool wasModified, bool asked);
    Command MenuEffect();
    Command PaletteEffect();
    Command History();
    Command SaveSomewhere();
    Command Zoom();
    Command CloseWindow();
    Command SpoilOrMend();
    /// Closes the document in the model; false when a failed save keeps it open.
    bool ModelClosed(std::string& text);
    Saving PlanSaving(std::string& text);
    void PlanEffect(const Effect& effect, std::string& text);
    bool Reachable(int entry) const;
    Command Clicked(int entry, std::string text);
    Command Pressed(const char* button, std::string text);
    void AnswerSlider(const Effect& effect, std::string& text);

    Session& session_;
    ScriptedDialogs& dialogs_;
    std::mt19937_64 random_;
};

}  // namespace pixano::test
