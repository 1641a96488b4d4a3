#include "files/descriptor.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

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

TEST(DescriptorSink, TakesNothingMoreAfterAnError)
{
    const Descriptor file(open("/dev/full", O_WRONLY | O_CLOEXEC));
    ASSERT_GE(file.Number(), 0);
    DescriptorSink sink(file.Number());
    const std::array bytes{std::byte{1}};
    EXPECT_FALSE(sink.Write(bytes));
    // There is room again: what came later would stand where the lost part should.
    const Descriptor room(open("/dev/null", O_WRONLY | O_CLOEXEC));
    ASSERT_GE(dup2(room.Number(), file.Number()), 0);
    EXPECT_FALSE(sink.Write(bytes));
    EXPECT_EQ(sink.Error(), ENOSPC);
}

}  // namespace
}  // namespace pixano::test
