// Which file each result goes to, and the refusal of plans that would lose a picture. Asks the file
// system what is the same file; reads none.
#pragma once

#include "batch/command_line.h"

#include <string>
#include <vector>

namespace pixano::batch {

/// One picture: the file that it is read from and the file that its result is written to.
struct PlannedPicture {
    std::string input;
    std::string output;
};

/// Throws WrongCommandLine when two results would go to the same file, a result to a file that is
/// read, or to a file whose name asks for a format that is not written.
std::vector<PlannedPicture> PlanPictures(const CommandLine& line);

/// The files of a sheet of all effects on one picture, none of which is that picture.
struct PlannedSheet {
    std::vector<PlannedPicture> effects;  ///< one small picture for each effect of the catalogue
    std::string original;                 ///< the small picture without an effect
    std::string page;
};

/// Throws WrongCommandLine when the picture itself would be replaced.
PlannedSheet PlanSheet(const CommandLine& line);

}  // namespace pixano::batch
