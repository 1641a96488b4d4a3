// The platform's run-time errors as one exception type. Knows nothing of who shows them.
#pragma once

#include <exception>
#include <string>
#include <string_view>

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
};

/// A run-time error. Thrown where it is detected, shown where the command entered the program.
class Fault : public std::exception {
  public:
    /// `subject`: what the error is about, a file name as a rule; may be empty. UTF-8.
    explicit Fault(FaultKind kind, std::string_view subject = {});

    FaultKind Kind() const { return kind_; }
    /// One Italian sentence without a full stop, UTF-8.
    const char* what() const noexcept override { return text_.c_str(); }

  private:
    FaultKind kind_;
    std::string text_;
};

}  // namespace pixano
