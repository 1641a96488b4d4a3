// What reading a picture may take, measured in a process of its own.
#pragma once

#include "reliability/fuzz_memory.h"
#include "reliability/fuzz_time.h"

#include <gtest/gtest.h>

#include <cstdio>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace pixano::test {

/// The sides of the large pictures.
inline constexpr int Side = 4096;
inline constexpr double Pixels = double{Side} * Side;

/// The memory that may be used beside the picture's. The address sanitizer keeps books on every
/// piece.
inline const double Besides = MallocIsBounded ? 4 << 20 : 48 << 20;

/// The most memory that this process has used at once.
inline double MemoryUsed()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

/// Runs `step` in a process of its own, which starts with little memory used.
template <class Step>
void InAProcessOfItsOwn(Step step)
{
    const pid_t child = fork();
    if (child == 0) {
        step();
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

}  // namespace pixano::test
