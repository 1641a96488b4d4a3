#include "files/system_reason.h"

#include <cerrno>

namespace pixano {

std::string SystemReason(int error)
{
    switch (error) {
    case ENOENT:
        return "il file non esiste";
    case ENOTDIR:
        return "una parte del percorso non è una cartella";
    case EISDIR:
        return "è una cartella";
    case EACCES:
    case EPERM:
        return "manca il permesso";
    case EROFS:
        return "il disco è in sola lettura";
    case ENOSPC:
        return "non c'è più spazio sul disco";
    case EDQUOT:
        return "la quota disco dell'utente è esaurita";
    case EFBIG:
        return "il file supera la dimensione consentita";
    case ENAMETOOLONG:
        return "il nome è troppo lungo";
    case ELOOP:
        return "i collegamenti non portano a nessun file";
    case EMFILE:
    case ENFILE:
        return "ci sono troppi file aperti";
    case ENOMEM:
        return "la memoria non basta";
    case EPIPE:
        return "chi riceve i dati ha smesso di leggere";
    case EBADF:
        return "il canale è chiuso";
    case EIO:
        return "il disco non risponde come dovrebbe";
    default:
        return "il sistema segnala l'errore " + std::to_string(error);
    }
}

}  // namespace pixano
