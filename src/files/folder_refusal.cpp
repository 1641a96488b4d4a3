#include "files/folder_refusal.h"

#include <sys/stat.h>

namespace pixano {

Refusal FolderRefusal(int error, const std::string& folder)
{
    if (error != EACCES && error != ENOENT) return Refusal(error);
    const char* why = "manca il permesso di scrivere nella cartella";
    if (error == ENOENT) {
        // A folder that was deleted while it was in use is still there, but nothing leads to it.
        // Some of the system's own folders say of every new file that it is not there.
        struct stat found = {};
        const bool there = stat(folder.c_str(), &found) == 0 && found.st_nlink > 0;
        why = there ? "la cartella non accetta file nuovi" : "la cartella non esiste";
    }
    const Refusal refusal(why);
    return refusal;
}

}  // namespace pixano
