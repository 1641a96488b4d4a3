// Calls to the system that fail when a test says so: opening, writing, synchronising, naming and
// closing files. Knows nothing of what is saved.
#pragma once

#include <cerrno>

namespace pixano::test {

/// Which calls fail. They are counted from 1; only those on regular files and folders count.
struct FailingCalls {
    enum class As {
        Error,    ///< with `error`
        Half,     ///< a write takes half of the bytes; other calls succeed
        Nothing,  ///< a write takes nothing and gives no reason; other calls succeed
    };

    long first = 1;
    long last = 1;
    int error = EIO;
    As as = As::Error;
    /// Only calls that a signal may interrupt: open, write, synchronise, close.
    bool interruptible = false;
    /// The file system can neither make files without a name nor exchange two of them.
    bool oldFileSystem = false;
    /// How many bytes may be written altogether before the disk is full.
    long room = -1;
};

/// From now on calls fail as said, and are counted anew. A program into which this library is
/// preloaded begins with the orders in PIXANO_FAILING_CALLS: first, last and error, parted by
/// blanks; it writes how many calls have failed to the file PIXANO_FAILED_CALLS when it ends.
void BeginToFail(const FailingCalls& orders);

/// No call fails any more. Gives how many have.
long EndFailing();

}  // namespace pixano::test
