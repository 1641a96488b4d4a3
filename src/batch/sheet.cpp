#include "batch/sheet.h"

#include "canvas/shrink.h"
#include "effects/frame.h"
#include "files/atomic_file.h"
#include "files/refusal.h"
#include "files/system_reason.h"
#include "pictures/picture_files.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <utility>

namespace pixano::batch {
namespace {

/// The longest side of a small picture.
constexpr int SmallSide = 240;
/// What random effects start from where nothing else is asked for: the commands tell it.
constexpr std::uint64_t UsualSeed = 1;

std::string NameOnly(const std::string& path)
{
    return std::filesystem::path(path).filename().string();
}

/// Saves the picture small, and keeps in `shown` which file that is and how large.
void SaveSmall(Surface picture, const std::string& path, SmallPicture& shown)
{
    const Surface small = ShrunkWithin(std::move(picture), SmallSide);
    SavePicture(small, path);
    shown = {NameOnly(path), small.Width(), small.Height()};
}

}  // namespace

Sheet::Sheet(const CommandLine& line, const PlannedSheet& plan, const Strengths& valori)
    : plan_(plan), seed_(line.seed.value_or(UsualSeed))
{
    contents_.input = line.inputs.front();
    PictureRead read = ReadPicture(contents_.input);
    notice_ = NoticeOf(contents_.input, read.truncated);
    picture_ =
        line.within ? ShrunkWithin(std::move(read.picture), *line.within) : std::move(read.picture);
    contents_.width = picture_.Width();
    contents_.height = picture_.Height();
    contents_.within = line.within;
    contents_.seed = seed_;
    SaveSmall(picture_, plan.original, contents_.original);
    for (const Effect& effect : Effects) {
        SheetEntry& entry = contents_.entries.emplace_back();
        entry.step.effect = &effect;
        if (effect.selector != 0)
            entry.step.strength = valori.at(static_cast<std::size_t>(effect.selector));
    }
}

std::string Sheet::TriedCaption(SheetEntry& entry, const PlannedPicture& planned,
                                ChainProgress& progress) const
{
    Work w(MemoryStore(), progress, Timer(seed_));
    PutOnCanvas(w, picture_);
    std::string caption =
        RunChain(w, {&entry.step, 1}, {}, Caption(entry.step.effect->name, w), progress);
    SaveSmall(std::move(w.Picture1), planned.output, entry.shown);
    return caption;
}

Outcome Sheet::Try(std::size_t place, ChainProgress& progress)
{
    const PlannedPicture& planned = plan_.effects.at(place);
    SheetEntry& entry = contents_.entries.at(place);
    try {
        return {true, planned.output + ": " + TriedCaption(entry, planned, progress),
                place == 0 ? notice_ : "", ""};
    } catch (const EffectFailed& failed) {
        entry.refusal = failed.what();
        return {true, "", planned.input + ": " + entry.refusal, ""};
    } catch (const PictureError& error) {
        return {false, "", "", error.what()};
    } catch (const std::bad_alloc&) {
        return {false, "", "", planned.input + ": " + SystemReason(ENOMEM)};
    }
}

void Sheet::WritePage() const
{
    const std::string text = SheetPage(contents_);
    TellRefusal("salvare", plan_.page, [&] {
        ReplaceFile(plan_.page, AtomicFile::Purpose::Document,
                    [&](ByteSink& file) { file.Write(std::as_bytes(std::span(text))); });
    });
}

}  // namespace pixano::batch
