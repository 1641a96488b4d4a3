// The lock that keeps a second instance of the program off the same data folder.
#pragma once

#include "files/descriptor.h"

#include <QString>

namespace pixano {

/// Holds the lock file as long as it lives. The system itself lets go of it however the program
/// ends, so no trace of a run that was killed can keep the next one out.
class OnlyInstance {
  public:
    /// Throws Fault FileAccess when `path` cannot serve as a lock.
    explicit OnlyInstance(const QString& path);

    /// Whether no other instance has it.
    explicit operator bool() const { return held_; }

  private:
    Descriptor file_;
    bool held_ = false;
};

}  // namespace pixano
