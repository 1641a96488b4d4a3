// How a call that stands in the place of the system's is made to fail. In a namespace of its own,
// so that no test's name gets in the way.
#pragma once

#include "reliability/preload/failing_calls.h"

#include <atomic>

namespace pixano::test::failing {

inline std::atomic<bool> active{false};
inline FailingCalls orders;
/// How many calls have failed since the last beginning.
inline std::atomic<long> failed{0};
/// How many bytes may still be written.
inline std::atomic<long> room{0};

/// Whether this call is one of those that fail; counts it.
bool Fails(Call kind);

/// Is what a call gives that fails so; counts it.
int Failed(int error);

/// What the file system has never been able to do is no failure.
int Refused(int error);

/// Sockets, pipes and the toolkit's own events are left alone.
bool IsFileOrFolder(int descriptor);

/// A call whose whole failure is an error.
template <class Make>
int FailingOr(Call kind, Make call)
{
    if (Fails(kind) && orders.as == FailingCalls::As::Error) return Failed(orders.error);
    return static_cast<int>(call());
}

template <class Make>
int OnDescriptor(int descriptor, Call kind, Make call)
{
    if (!active || !IsFileOrFolder(descriptor)) return static_cast<int>(call());
    return FailingOr(kind, call);
}

}  // namespace pixano::test::failing
