// What the player does with files and windows: opens, saves, closes, spoils a picture and mends it.
#include "pictures/picture_files.h"
#include "reliability/player.h"
#include "support/entries.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

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
    const bool asked = model.modified;
    bool modified = asked;
    if (asked) {
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
    ModelOpened(name, modified, asked);
    return Clicked(entry::Apri, text + " " + name);
}

void Player::ModelOpened(const std::string& name, bool wasModified, bool asked)
{
    const bool there = model.files.contains(name);
    const bool same = model.isOpen && name == model.opened;
    if (there && !same && model.files[name]) {
        model.Open(name);
        return;
    }
    // Missing, broken, or on the canvas already: everything stays as it is.
    model.modified = wasModified;
    if (!there || !same || asked || model.Enabled(entry::Orig)) ++told;
}

Player::Command Player::SaveSomewhere()
{
    std::string text = "save";
    PlanSaving(text);
    return Clicked(entry::Salva, text);
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

}  // namespace pixano::test
