#include "canvas/fault.h"

namespace pixano {
namespace {

std::string_view Sentence(FaultKind kind)
{
    switch (kind) {
    case FaultKind::SubscriptOutOfRange:
        return "Indice fuori dalla matrice (ammessi da 0 a 1500): l'immagine è troppo grande, "
               "troppo piccola o troppo allungata per questo effetto";
    case FaultKind::DivisionByZero:
        return "Divisione per zero";
    case FaultKind::Overflow:
        return "Numero troppo grande";
    case FaultKind::TypeMismatch:
        return "È stato letto un testo al posto di un numero";
    case FaultKind::InputPastEnd:
        return "Lettura oltre la fine del file";
    case FaultKind::FileNotFound:
        return "File non trovato";
    case FaultKind::FileAccess:
        return "Impossibile accedere al file";
    case FaultKind::DiskFull:
        return "Impossibile scrivere tutto il file (disco pieno?)";
    case FaultKind::InvalidCall:
        return "Operazione impossibile";
    case FaultKind::OutOfMemory:
        return "La memoria non basta";
    }
    return "Errore sconosciuto";
}

}  // namespace

bool EndsProgram(Fatal fatal, FaultKind kind)
{
    switch (fatal) {
    case Fatal::None:
        return false;
    case Fatal::Index:
        return kind == FaultKind::SubscriptOutOfRange;
    case Fatal::IndexAndDivision:
        return kind == FaultKind::SubscriptOutOfRange || kind == FaultKind::DivisionByZero;
    case Fatal::All:
        return kind != FaultKind::InvalidCall;
    }
    return true;
}

Fault::Fault(FaultKind kind) : kind_(kind), text_(Sentence(kind)) {}

}  // namespace pixano
