#include "reliability/player.h"

#include "shell/controls.h"
#include "support/entries.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include <gtest/gtest.h>

#include <array>

namespace pixano::test {

Player::Player(Session& session, ScriptedDialogs& dialogs, std::uint64_t seed)
    : session_(session), dialogs_(dialogs), random_(seed)
{
    // The strengths are read where they are written, so that a confirmed one is found again.
    session.programFolder = QDir::currentPath();
    QFile strengths("valori.tip");
    EXPECT_TRUE(strengths.open(QIODevice::WriteOnly));
    strengths.write("1000\r\n5000\r\n5000\r\n5000\r\n5000\r\n");
    if (!QFile::exists("figura 1.bmp")) MakePictures();
    ReadPictures();
}

std::string Player::Path(const std::string& name) const
{
    return QDir::current().filePath(QString::fromStdString(name)).toStdString();
}

Player::Command Player::Next()
{
    if (model.progressShown && Chance(30)) {
        model.CloseProgress();
        return {"close the progress window", [this] { session_.form4.close(); }};
    }
    const int dice = Number(0, 99);
    if (!model.isOpen || dice < 10) return OpenSomething();
    if (dice < 34) return MenuEffect();
    if (dice < 54 && model.paletteShown) return PaletteEffect();
    if (dice < 80) return History();
    if (dice < 86 && model.Enabled(entry::Salva)) return SaveSomewhere();
    if (dice < 93 && model.paletteShown) return Zoom();
    if (dice < 97) return CloseWindow();
    return SpoilOrMend();
}

bool Player::Reachable(int entry) const
{
    if (!model.Enabled(entry)) return false;
    const QString parent = MenuEntries()[static_cast<std::size_t>(entry - 1)].parent;
    for (int above = 1; above < entry; ++above)
        if (parent == MenuEntries()[static_cast<std::size_t>(above - 1)].name)
            return Reachable(above);
    return true;
}

Player::Command Player::Clicked(int entry, std::string text)
{
    return {std::move(text), [this, entry] {
                QAction& action = session_.form1.Control(entry - 1);
                EXPECT_TRUE(action.isEnabled()) << action.objectName().toStdString();
                action.trigger();
            }};
}

Player::Command Player::Pressed(const char* button, std::string text)
{
    return {std::move(text), [this, button] {
                auto* const found = session_.form10.findChild<QPushButton*>(button);
                EXPECT_TRUE(found->isVisible() && found->isEnabled()) << button;
                found->click();
            }};
}

void Player::PlanEffect(const Effect& effect, std::string& text)
{
    const std::optional<FaultKind> fault = model.RunEffect(effect);
    if (!fault) return;
    text += " (ends in a run-time error)";
    ++told;
    ended = EndsProgram(effect.fatal, *fault);
}

Player::Command Player::MenuEffect()
{
    std::vector<const Effect*> effects;
    for (const Effect& effect : Effects)
        if (const int entry = EntryOf(effect); entry != 0 && Reachable(entry))
            effects.push_back(&effect);
    if (effects.empty()) return OpenSomething();
    const Effect& effect =
        *effects.at(static_cast<std::size_t>(Number(0, static_cast<int>(effects.size()) - 1)));
    std::string text = std::string(effect.name);
    PlanEffect(effect, text);
    return Clicked(EntryOf(effect), text);
}

void Player::AnswerSlider(const Effect& effect, std::string& text)
{
    constexpr std::array Strengths{0, 1, 700, 2500, 5000, 9999, 10000};
    const int strength = Strengths.at(static_cast<std::size_t>(Number(0, Strengths.size() - 1)));
    const bool confirmed = Chance(75);
    text += " with " + std::to_string(strength) + (confirmed ? "" : ", cancelled");
    QTimer::singleShot(0, [strength, confirmed] {
        auto* const window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        window->findChild<QSlider*>("Slider1")->setValue(strength);
        window->findChild<QPushButton*>(confirmed ? "Command1" : "Command2")->click();
    });
    if (!confirmed) return;
    model.strengths.at(static_cast<std::size_t>(effect.selector)) = strength;
    PlanEffect(effect, text);
}

Player::Command Player::PaletteEffect()
{
    std::vector<const PaletteButton*> buttons;
    for (const PaletteButton& button : PaletteButtons())
        if (EffectIn(button.starts) != nullptr) buttons.push_back(&button);
    const PaletteButton& button =
        *buttons.at(static_cast<std::size_t>(Number(0, static_cast<int>(buttons.size()) - 1)));
    const Effect& effect = *EffectIn(button.starts);
    std::string text = "palette: " + std::string(effect.name);
    if (effect.selector == 0) {
        PlanEffect(effect, text);
        return Pressed(button.name, text);
    }
    Command pressed = Pressed(button.name, {});
    // The slider window is answered while the press waits for it.
    AnswerSlider(effect, text);
    return {text, pressed.give};
}

Player::Command Player::History()
{
    struct Step {
        int entry;
        const char* text;
        const char* button;
        decltype(&Model::paletteUndo) usable;
    };
    constexpr std::array Ways{
        Step{entry::Undo, "undo", "SSCommand15", &Model::paletteUndo},
        Step{entry::Orig, "original", "SSCommand16", &Model::paletteOriginal},
        Step{entry::Redo, "redo", "SSCommand17", &Model::paletteRedo},
    };
    const auto& [entry, text, button, usable] = Ways.at(static_cast<std::size_t>(Number(0, 2)));
    const bool byPalette = model.paletteShown && Chance(50);
    if (!(byPalette ? model.*usable : model.Enabled(entry))) return MenuEffect();
    bool well = true;
    if (entry == entry::Undo) model.Undo();
    if (entry == entry::Orig) well = model.Original();
    if (entry == entry::Redo) well = model.Redo();
    if (!well) ++told;
    if (!byPalette) return Clicked(entry, text);
    return Pressed(button, std::string("palette: ") + text);
}

Player::Command Player::Zoom()
{
    const bool larger = Chance(50);
    model.Zoom(larger ? 0.3 : -0.3);
    return Pressed(larger ? "Command1" : "Command2", larger ? "zoom in" : "zoom out");
}

}  // namespace pixano::test
