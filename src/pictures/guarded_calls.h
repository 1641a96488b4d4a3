// Calls into C libraries that report errors by longjmp. Knows no library.
#pragma once

#include <csetjmp>

namespace pixano {

/// Runs steps that a C library may leave by a long jump. A step, and whatever it calls, must have
/// nothing to destroy while the library works: no destructor runs on a jump.
class GuardedCalls {
  public:
    /// False when the step was left by `Leave`.
    template <class Step>
    bool Run(Step&& step)
    {
        if (setjmp(back_) != 0) return false;
        step();
        return true;
    }
    /// Ends the step that is running.
    [[noreturn]] void Leave() { std::longjmp(back_, 1); }

  private:
    std::jmp_buf back_;
};

}  // namespace pixano
