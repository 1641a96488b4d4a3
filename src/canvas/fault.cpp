#include "canvas/fault.h"

namespace pixano {
namespace {

std::string_view Sentence(FaultKind kind)
{
    switch (kind) {
    case FaultKind::SubscriptOutOfRange:
        return "Indice fuori dalla matrice (ammessi da 0 a 1500): la figura è troppo grande o "
               "troppo stretta per questo effetto";
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
    }
    return "Errore sconosciuto";
}

}  // namespace

Fault::Fault(FaultKind kind, std::string_view subject) : kind_(kind), text_(Sentence(kind))
{
    if (!subject.empty()) text_.append(": ").append(subject);
}

}  // namespace pixano
