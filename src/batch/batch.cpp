#include "batch/batch.h"

#include "batch/command_line.h"
#include "batch/console.h"
#include "batch/harmless.h"
#include "batch/plan.h"
#include "batch/pool.h"
#include "batch/sheet.h"
#include "batch/texts.h"
#include "files/strengths_file.h"
#include "files/system_reason.h"
#include "version.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <new>
#include <thread>

#include <unistd.h>

namespace pixano::batch {
namespace {

/// Passes on to the console what the effects of one picture tell.
class ConsoleProgress : public ChainProgress {
  public:
    explicit ConsoleProgress(Console& console) : console_(console) {}

    void Begins(const Effect& effect) override { effect_ = effect.name; }
    void Avanzamento(double n, int alt) override
    {
        constexpr int BarPerPercent = 4;
        ChainProgress::Avanzamento(n, alt);
        console_.Running(effect_, ValBarra() / BarPerPercent);
    }

  private:
    Console& console_;
    std::string_view effect_;
};

int Complain(const std::string& text, ExitStatus status)
{
    std::fprintf(stderr, "pixano-batch: %s\n", text.c_str());
    return status;
}

int Print(const std::string& text)
{
    if (std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0) return AllDone;
    return Complain(UnprintedText(errno), SomethingFailed);
}

Recipe ReadRecipe(const CommandLine& line, const std::string& ownFolder)
{
    Recipe recipe{line.steps, {}, line.seed, line.within};
    if (line.quality) recipe.quality = *line.quality;
    const bool needsFile = std::ranges::any_of(
        line.steps, [](const Step& step) { return step.effect->selector != 0 && !step.strength; });
    if (needsFile) LeggiValori(ownFolder + "/valori.tip", recipe.valori);
    return recipe;
}

unsigned ThreadsOf(const CommandLine& line)
{
    return line.jobs.value_or(std::max(1U, std::thread::hardware_concurrency()));
}

/// Runs the job of each place, as many at once as wanted, and says how each ended.
int RunJobs(const std::vector<PlannedPicture>& pictures, const CommandLine& line,
            const std::function<Outcome(std::size_t place, ChainProgress& progress)>& job)
{
    Console console(pictures, line.quiet);
    ForEachPlace(pictures.size(), ThreadsOf(line), [&](std::size_t place) {
        ConsoleProgress progress(console);
        console.Ended(place, job(place, progress));
    });
    return console.AllDone() ? AllDone : SomethingFailed;
}

/// Throws FileNotFound when the folder that the results go to is not there.
void RequireFolder(const CommandLine& line)
{
    std::error_code error;
    if (line.folder && !std::filesystem::is_directory(*line.folder, error))
        throw Fault(FaultKind::FileNotFound, "La cartella «" + *line.folder + "» non esiste");
}

int RunSheet(const CommandLine& line, const std::string& ownFolder)
{
    const PlannedSheet plan = PlanSheet(line);
    RequireFolder(line);
    Strengths valori{};
    LeggiValori(ownFolder + "/valori.tip", valori);
    Sheet sheet(line, plan, valori);
    const int status =
        RunJobs(plan.effects, line, [&sheet](std::size_t place, ChainProgress& progress) {
            return sheet.Try(place, progress);
        });
    sheet.WritePage();
    return line.quiet ? status : std::max(status, Print(Harmless(plan.page) + "\n"));
}

int RunPictures(const CommandLine& line, const std::string& ownFolder)
{
    if (line.output == StandardStream && ::isatty(STDOUT_FILENO) == 1)
        throw WrongCommandLine("Un'immagine non si scrive su un terminale: manca «> FILE»");
    const auto pictures = PlanPictures(line);
    RequireFolder(line);
    const Recipe recipe = ReadRecipe(line, ownFolder);
    return RunJobs(pictures, line, [&](std::size_t place, ChainProgress& progress) {
        return RunPictureJob(pictures[place], recipe, progress);
    });
}

int RunTask(const CommandLine& line, const std::string& ownFolder)
{
    switch (line.task) {
    case Task::Help:
        return Print(HelpText());
    case Task::Version:
        return Print(VersionLine);
    case Task::List:
        return Print(EffectList());
    case Task::Sheet:
        return RunSheet(line, ownFolder);
    case Task::Pictures:
        break;
    }
    return RunPictures(line, ownFolder);
}

}  // namespace

int RunBatch(std::span<const std::string_view> arguments, const std::string& ownFolder)
{
    try {
        return RunTask(ParseCommandLine(arguments), ownFolder);
    } catch (const WrongCommandLine& wrong) {
        return Complain(Harmless(wrong.what()) + "\nUso: pixano-batch [OPZIONI] -o USCITA "
                                                 "INGRESSO (tutto il resto con --aiuto)",
                        CommandWrong);
    } catch (const Fault& fault) {
        return Complain(Harmless(fault.what()), SomethingFailed);
    } catch (const std::bad_alloc&) {
        return Complain(SystemReason(ENOMEM), SomethingFailed);
    }
}

}  // namespace pixano::batch
