// What the program should be like after each command, worked out without windows and without
// working files: four pictures, some counters, and the switches of the menu. Effects run on a copy
// of their own.
#pragma once

#include "canvas/fault.h"
#include "effects/catalogue.h"
#include "support/effect_run.h"

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace pixano::test {

class Model {
  public:
    Model();

    /// The picture files on disk; nothing = it cannot be read as a picture.
    std::map<std::string, std::optional<Surface>> files;
    /// The five strengths in their file.
    Strengths strengths{0, 1000, 5000, 5000, 5000, 5000};

    void Open(const std::string& name);
    /// What a run that ended badly had made of that picture is on the canvas again.
    void BringBack(const std::string& name, const Surface& picture);
    /// The run-time error that it ended in, if any; the canvas is half drawn then.
    std::optional<FaultKind> RunEffect(const Effect& effect);
    void Undo();
    /// False when there is no picture to go forward to.
    bool Redo();
    /// False when the opened picture cannot be read any more.
    bool Original();
    void Save(const std::string& name);
    void Zoom(double change);
    void CloseCanvas();
    void ClosePreview();
    void ClosePalette() { paletteShown = false; }
    void CloseProgress();

    const Surface& Canvas() const { return mirror_.work.Picture1; }
    bool Enabled(int entry) const { return on_.contains(entry); }

    std::string opened;
    bool isOpen = false;
    bool modified = false;
    std::string saved;
    int checked = 0;
    double zoom = 1;
    Surface preview;
    std::string canvasCaption;
    std::string previewCaption;
    bool canvasShown = false;
    bool previewShown = false;
    bool paletteShown = false;
    bool progressShown = false;
    /// The last effect ended in a run-time error, and may have left its pixel working file.
    bool faulted = false;
    /// A pixel file may lie about that a run-time error left, until the next effect that makes one.
    bool fileLeft = false;
    bool paletteUndo = true;
    bool paletteOriginal = true;
    bool paletteRedo = true;

  private:
    void Disable();
    void DisableHistory();
    void Switch(int entry, bool on);
    void Rename(const std::string& name);
    void Load(const Surface& picture);
    void ShowPreview();
    void PaletteReady();
    void MoveCheck(const Effect& effect);
    std::string Sized(const std::string& name) const;

    EffectRun mirror_;
    std::optional<Surface> undo_;
    std::optional<Surface> redo_;
    std::set<int> on_;
    std::string effect_;
    std::string shortName_;
    int count_ = 0;
    int countSaved_ = 0;
    bool inOriginal_ = false;
    bool undone_ = false;
};

}  // namespace pixano::test
