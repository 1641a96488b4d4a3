#include "reliability/player.h"

#include "pictures/picture_files.h"
#include "shell/controls.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <array>

namespace pixano::test {
namespace {

Surface RandomPicture(int width, int height, std::mt19937_64& random)
{
    Surface picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.PSet(x, y, static_cast<Colour>(random() & White));
    return picture;
}

void WriteGarbage(const std::string& name)
{
    QFile file(QString::fromStdString(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("BM, and then nothing that makes a picture");
}

}  // namespace

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

void Player::MakePictures()
{
    int number = 0;
    for (const int height : {Number(1, 4), Number(5, 16), Number(5, 24)}) {
        const int width = Number(std::max(1, height - 3), height + 5);
        WriteWorkingBitmap(RandomPicture(width, height, random_),
                           Path("figura " + std::to_string(++number) + ".bmp"));
    }
    WriteGarbage(Path("guasta.bmp"));
}

void Player::ReadPictures()
{
    for (const QString& file : QDir().entryList({"*.bmp"}, QDir::Files)) {
        const std::string name = Path(file.toStdString());
        try {
            model.files[name] = ReadPicture(name).picture;
        } catch (const PictureError&) {
            model.files[name] = std::nullopt;
        }
    }
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

Player::Saving Player::PlanSaving(std::string& text)
{
    for (;;) {
        if (Chance(20)) {
            dialogs_.saveNames.push_back(std::nullopt);
            text += ", save cancelled";
            return Saving::Cancelled;
        }
        if (Chance(10)) {
            dialogs_.saveNames.push_back(QString::fromStdString(Path("manca/x.bmp")));
            text += ", save fails";
            ++told;
            model.modified = true;
            return Saving::Failed;
        }
        const std::string name =
            Chance(20) ? model.opened : Path("salvata " + std::to_string(Number(1, 3)) + ".bmp");
        dialogs_.saveNames.push_back(QString::fromStdString(name));
        text += ", save " + name;
        if (model.files.contains(name)) {
            const bool replace = Chance(70);
            dialogs_.answers.push_back(replace);
            if (!replace) continue;
        }
        model.Save(name);
        return Saving::Saved;
    }
}

std::string Player::ChosenName()
{
    if (Chance(10)) return Path("non c'è.bmp");
    auto chosen = model.files.begin();
    std::advance(chosen, Number(0, static_cast<int>(model.files.size()) - 1));
    return chosen->first;
}

Player::Command Player::OpenSomething()
{
    std::string text = "open";
    bool modified = model.modified;
    if (modified) {
        const bool save = Chance(50);
        dialogs_.answers.push_back(save);
        text += save ? " (yes" : " (no";
        const Saving saving = save ? PlanSaving(text) : Saving::Cancelled;
        text += ")";
        if (saving == Saving::Failed) return Clicked(entry::Apri, text);
        if (saving == Saving::Saved) modified = false;
    }
    if (Chance(10)) {
        dialogs_.openNames.push_back(std::nullopt);
        model.modified = modified;
        return Clicked(entry::Apri, text + " cancelled");
    }
    const std::string name = ChosenName();
    dialogs_.openNames.push_back(QString::fromStdString(name));
    ModelOpened(name, modified);
    return Clicked(entry::Apri, text + " " + name);
}

void Player::ModelOpened(const std::string& name, bool wasModified)
{
    const bool there = model.files.contains(name);
    const bool same = model.isOpen && name == model.opened;
    if (there && !same && model.files[name]) {
        model.Open(name);
        return;
    }
    // Missing, broken, or on the canvas already: everything stays as it is.
    model.modified = wasModified;
    if (!there || !same) ++told;
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
    const int entry = std::array{entry::Undo, entry::Orig, entry::Redo}.at(
        static_cast<std::size_t>(Number(0, 2)));
    const bool byPalette = model.paletteShown && Chance(50);
    const bool paletteOn = entry == entry::Undo   ? model.paletteUndo
                           : entry == entry::Orig ? model.paletteOriginal
                                                  : model.paletteRedo;
    if (!(byPalette ? paletteOn : model.Enabled(entry))) return MenuEffect();
    bool well = true;
    if (entry == entry::Undo) model.Undo();
    if (entry == entry::Orig) well = model.Original();
    if (entry == entry::Redo) well = model.Redo();
    if (!well) ++told;
    const std::string text = entry == entry::Undo   ? "undo"
                             : entry == entry::Orig ? "original"
                                                    : "redo";
    if (!byPalette) return Clicked(entry, text);
    return Pressed(entry == entry::Undo   ? "SSCommand15"
                   : entry == entry::Orig ? "SSCommand16"
                                          : "SSCommand17",
                   "palette: " + text);
}

Player::Command Player::SaveSomewhere()
{
    std::string text = "save";
    PlanSaving(text);
    return Clicked(entry::Salva, text);
}

Player::Command Player::Zoom()
{
    const bool larger = Chance(50);
    model.Zoom(larger ? 0.3 : -0.3);
    return Pressed(larger ? "Command1" : "Command2", larger ? "zoom in" : "zoom out");
}

bool Player::ModelClosed(std::string& text)
{
    if (!model.modified) return true;
    const bool save = Chance(50);
    dialogs_.answers.push_back(save);
    text += save ? " (yes" : " (no";
    const bool closes = !save || PlanSaving(text) != Saving::Failed;
    text += ")";
    return closes;
}

Player::Command Player::CloseWindow()
{
    const int which = Number(0, 2);
    if (which == 0 && model.canvasShown) {
        std::string text = "close the canvas";
        if (ModelClosed(text)) model.CloseCanvas();
        return {text, [this] { session_.form2.close(); }};
    }
    if (which == 1 && model.previewShown) {
        std::string text = "close the preview";
        if (ModelClosed(text)) model.ClosePreview();
        return {text, [this] { session_.form9.close(); }};
    }
    if (!model.paletteShown) return OpenSomething();
    model.ClosePalette();
    return {"close the palette", [this] { session_.form10.close(); }};
}

Player::Command Player::SpoilOrMend()
{
    const std::string name = model.opened;
    // What was saved stays whole, whatever happens: that is looked at after a crash.
    if (name.find("figura") == std::string::npos) return History();
    const bool spoil = model.files[name].has_value();
    model.files[name] = spoil ? std::nullopt
                              : std::optional(RandomPicture(model.Canvas().Width(),
                                                            model.Canvas().Height(), random_));
    return {(spoil ? "spoil " : "mend ") + name, [name, picture = model.files[name]] {
                if (picture)
                    WriteWorkingBitmap(*picture, name);
                else
                    WriteGarbage(name);
            }};
}

std::string Difference(Session& session, const Model& model)
{
    QStringList found;
    const auto compare = [&found](const QString& what, const auto& is, const auto& should) {
        if (is == should) return;
        QString text = what;
        if constexpr (requires { QString::number(static_cast<double>(is)); })
            text += QString(": %1, not %2").arg(is).arg(should);
        if constexpr (requires { is.startsWith(QString()); })
            text += ": \"" + is + "\", not \"" + should + '"';
        found += text;
    };
    const Document& d = session.doc;
    compare("canvas", session.work.Picture1, model.Canvas());
    compare("preview", session.form9.Image1().Picture(), model.preview);
    compare("Modificato", d.Modificato, model.modified ? 1 : 0);
    compare("open", d.open, model.isOpen);
    compare("canvas caption", session.form2.windowTitle(),
            QString::fromStdString(model.canvasCaption));
    compare("preview caption", session.form9.windowTitle(),
            QString::fromStdString(model.previewCaption));
    compare("NomeSalvato", d.NomeSalvato, QString::fromStdString(model.saved));
    for (int index = 1; index <= EntryCount(); ++index) {
        const QAction& action = session.form1.Control(index - 1);
        compare("enabled " + action.objectName(), action.isEnabled(), model.Enabled(index));
        compare("checked " + action.objectName(), action.isChecked(), model.checked == index);
    }
    compare("palette undo", session.form10.findChild<QPushButton*>("SSCommand15")->isEnabled(),
            model.paletteUndo);
    compare("palette original", session.form10.findChild<QPushButton*>("SSCommand16")->isEnabled(),
            model.paletteOriginal);
    compare("palette redo", session.form10.findChild<QPushButton*>("SSCommand17")->isEnabled(),
            model.paletteRedo);
    compare("canvas shown", session.form2.isVisible(), model.canvasShown);
    compare("preview shown", session.form9.isVisible(), model.previewShown);
    compare("palette shown", session.form10.isVisible(), model.paletteShown);
    compare("progress window shown", session.form4.isVisible(), model.progressShown);
    return found.join("; ").toStdString();
}

}  // namespace pixano::test
