#include "batch/picture_job.h"

#include "batch/standard_streams.h"
#include "canvas/shrink.h"
#include "effects/frame.h"
#include "files/system_reason.h"

#include <cerrno>
#include <filesystem>
#include <new>

namespace pixano::batch {
namespace {

PictureRead ReadInput(const std::string& name)
{
    return name == StandardStream ? ReadStandardInput() : ReadPicture(name);
}

void Save(const Surface& surface, const std::string& name, const Extras& extras)
{
    // A name without an extension asks for no other format.
    if (std::filesystem::path(name).has_extension())
        SaveWithExtras(surface, name, extras);
    else
        SaveBitmap(surface, name);
}

void WriteOutput(const Surface& surface, const std::string& name, const Extras& extras)
{
    if (name == StandardStream)
        WriteStandardOutput(surface);
    else
        Save(surface, name, extras);
}

Outcome DoPicture(const PlannedPicture& picture, const Recipe& recipe, ChainProgress& progress)
{
    PictureRead read = ReadInput(picture.input);
    if (recipe.within) read.picture = ShrunkWithin(std::move(read.picture), *recipe.within);
    // A state of its own: no picture can tell which ones were done before it.
    Work w(MemoryStore(), progress, recipe.seed ? Timer(*recipe.seed) : Timer());
    PutOnCanvas(w, std::move(read.picture));
    const std::string fileName = std::filesystem::path(picture.input).filename().string();
    const std::string caption =
        RunChain(w, recipe.steps, recipe.valori, Caption(fileName, w), progress);
    const Extras extras{recipe.quality, std::move(read.profile)};
    WriteOutput(w.Picture1, picture.output, extras);
    return {true, picture.output + ": " + caption, NoticeOf(picture.input, read.truncated), ""};
}

}  // namespace

std::string NoticeOf(const std::string& input, bool truncated)
{
    return truncated
               ? input +
                     ": attenzione, il file è incompleto o danneggiato; quel che manca resta grigio"
               : std::string();
}

Outcome RunPictureJob(const PlannedPicture& picture, const Recipe& recipe, ChainProgress& progress)
{
    try {
        return DoPicture(picture, recipe, progress);
    } catch (const PictureError& error) {
        return {false, "", "", error.what()};  // which names the file
    } catch (const std::bad_alloc&) {
        return {false, "", "", picture.input + ": " + SystemReason(ENOMEM)};
    } catch (const std::exception& error) {
        return {false, "", "", picture.input + ": " + error.what()};
    }
}

}  // namespace pixano::batch
