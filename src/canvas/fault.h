// The platform's run-time errors as one exception type. Knows nothing of who shows them.
#pragma once

#include <exception>
#include <new>
#include <optional>
#include <string>
#include <utility>

namespace pixano {

enum class FaultKind {
    SubscriptOutOfRange,  ///< matrix index outside 0 to 1500
    DivisionByZero,
    Overflow,      ///< a value that does not fit into a 32-bit integer
    TypeMismatch,  ///< text read where a number was expected
    InputPastEnd,  ///< a file ended before all expected values were read
    FileNotFound,
    FileAccess,   ///< a file cannot be made, opened, read or deleted
    DiskFull,     ///< a file could not be written to its end
    InvalidCall,  ///< a request that can have no result
    OutOfMemory,
};

/// Which run-time errors in a command end the program; all others end the command alone.
enum class Fatal { None, Index, IndexAndDivision, All };

/// A request that can have no result has changed nothing that is seen: it never ends the program.
bool EndsProgram(Fatal fatal, FaultKind kind);

/// A run-time error. Thrown where it is detected, shown where the command entered the program.
class Fault : public std::exception {
  public:
    explicit Fault(FaultKind kind);
    /// With a sentence of its own: Italian, without a full stop, UTF-8.
    Fault(FaultKind kind, std::string sentence) : kind_(kind), text_(std::move(sentence)) {}

    FaultKind Kind() const { return kind_; }
    /// One Italian sentence without a full stop, UTF-8.
    const char* what() const noexcept override { return text_.c_str(); }

  private:
    FaultKind kind_;
    std::string text_;
};

/// Does the step; the run-time error that it ended in, that of memory too short for it too.
template <typename Step>
std::optional<Fault> ErrorOf(const Step& step)
{
    try {
        step();
        return std::nullopt;
    } catch (const Fault& fault) {
        return fault;
    } catch (const std::bad_alloc&) {
        return Fault(FaultKind::OutOfMemory);
    }
}

/// The first run-time error of several steps that are all to be done.
class FirstFault {
  public:
    /// Does the step; its error is kept for `Throw` unless an earlier one is.
    template <typename Step>
    void Try(const Step& step)
    {
        try {
            step();
        } catch (const Fault&) {
            Keep();
        } catch (const std::bad_alloc&) {
            Keep();
        }
    }
    explicit operator bool() const { return first_ != nullptr; }
    void Throw() const
    {
        if (first_) std::rethrow_exception(first_);
    }

  private:
    void Keep()
    {
        if (!first_) first_ = std::current_exception();
    }

    std::exception_ptr first_;
};

}  // namespace pixano
