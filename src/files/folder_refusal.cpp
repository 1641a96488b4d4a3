#include "files/folder_refusal.h"

#include <sys/stat.h>

namespace pixano {

void RefuseIn(const std::string& folder, int error)
{
    if (error == EACCES) throw Refusal("manca il permesso di scrivere nella cartella");
    if (error != ENOENT) throw Refusal(error);
    // A folder that was deleted while it was in use is still there, but nothing leads to it. Some
    // of the system's own folders say of every new file that it is not there.
    struct stat found = {};
    const bool there = stat(folder.c_str(), &found) == 0 && found.st_nlink > 0;
    throw Refusal(there ? "la cartella non accetta file nuovi" : "la cartella non esiste");
}

}  // namespace pixano
