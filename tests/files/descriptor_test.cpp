#include "files/descriptor.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(Descriptor, LeavesTheReasonOfAnEarlierFailureWhenItGoes)
{
    constexpr int NeverOpen = 1 << 30;
    errno = ENOENT;
    {
        const Descriptor closingFails(NeverOpen);
    }
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
}  // namespace pixano::test
