// Calls to the system that fail when a test says so: opening, writing, synchronising, naming and
// closing files. Knows nothing of what is saved.
#pragma once

#include <cerrno>

namespace pixano::test {

/// What a call does to a file. One bit each, so that several can be named.
enum Call : unsigned {
    Opens = 1,  ///< for writing, or a folder
    Writes = 2,
    Synchronises = 4,
    Closes = 8,
    Names = 16,    ///< gives it a name, or another one
    Changes = 32,  ///< its owner, its permissions, its size
    Deletes = 64,
    Reads = 128,       ///< opens it for reading
    Takes = 256,       ///< bytes from it
    Looks = 512,       ///< what it is, or whether it may be used
    Makes = 1024,      ///< a folder
    Allocates = 2048,  ///< memory for a picture; not the file's, and fails by an exception
    /// What a save needs.
    AnyCall = 63,
    /// What a command does to files.
    Everything = 2047,
    /// The calls that a signal may interrupt.
    Interruptible = AnyCall & ~Names
};

/// What a disk or its keeper may answer.
inline constexpr int Errors[] = {ENOSPC, EIO, EACCES, EDQUOT, EROFS};

/// Which calls fail. They are counted from 1; only those on regular files and folders count.
struct FailingCalls {
    enum class As {
        Error,    ///< with `error`
        Half,     ///< a write takes half of the bytes; other calls succeed
        Nothing,  ///< a write takes nothing and gives no reason; other calls succeed
        Death     ///< the process is killed instead
    };

    long first = 1;
    long last = 1;
    int error = EIO;
    As as = As::Error;
    /// Only these count.
    unsigned only = AnyCall;
    /// The file system can neither make files without a name nor exchange two of them.
    bool oldFileSystem = false;
    /// How many bytes may be written altogether before the disk is full.
    long room = -1;
};

/// From now on calls fail as said, and are counted anew. A program into which this library is
/// preloaded begins with the orders in PIXANO_FAILING_CALLS: first, last and error, parted by
/// blanks, then which calls count if not any; error 0 stands for Death. It writes how many calls
/// have failed to the file PIXANO_FAILED_CALLS when it ends.
void BeginToFail(const FailingCalls& orders);

/// No call fails any more. Gives how many have.
long EndFailing();

/// How many calls were counted since the last beginning.
long CountedCalls();

}  // namespace pixano::test
