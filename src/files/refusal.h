// Why a file is not read or written. Knows no file name: whoever knows it makes the sentence.
#pragma once

#include "canvas/fault.h"
#include "files/system_reason.h"

#include <cerrno>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

namespace pixano {

/// `what()` is the rest of an Italian sentence that begins with the file's name: it starts in lower
/// case and has no full stop.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
    /// What the system said, an errno.
    explicit Refusal(int error) : std::runtime_error(SystemReason(error)), kind_(KindOf(error)) {}

    FaultKind Kind() const { return kind_; }

  private:
    static FaultKind KindOf(int error)
    {
        if (error == ENOENT) return FaultKind::FileNotFound;
        if (error == ENOMEM) return FaultKind::OutOfMemory;
        const bool full = error == ENOSPC || error == EDQUOT || error == EFBIG;
        return full ? FaultKind::DiskFull : FaultKind::FileAccess;
    }

    FaultKind kind_ = FaultKind::FileAccess;
};

/// Runs `step`; what it refuses becomes an `Error`, a Fault, that says "Impossibile `verb`
/// «`name`»" and why.
template <class Error = Fault, class Step>
auto TellRefusal(std::string_view verb, const std::string& name, Step step)
{
    const auto sentence = [&](const std::string& why) {
        return "Impossibile " + std::string(verb) + " «" + name + "»: " + why;
    };
    try {
        return step();
    } catch (const Refusal& refusal) {
        throw Error(refusal.Kind(), sentence(refusal.what()));
    } catch (const std::bad_alloc&) {
        throw Error(FaultKind::OutOfMemory, sentence(SystemReason(ENOMEM)));
    }
}

}  // namespace pixano
