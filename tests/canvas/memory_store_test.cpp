#include "canvas/pixel_file.h"
#include "support/faults.h"

namespace pixano::test {
namespace {

class MemoryFile : public testing::Test {
  protected:
    void Write(int count)
    {
        file.OpenForOutput();
        for (int value = 0; value < count; ++value)
            file.Write(value - 100);
        file.Close();
    }
    void ExpectReadBack(int count)
    {
        for (int value = 0; value < count; ++value)
            ASSERT_EQ(file.Input(), value - 100);
        EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InputPastEnd);
    }

    PixelFile file{MemoryStore()};
};

// 262144 values fill the first of the pieces that the memory is taken in, 2097152 each that
// follows.
TEST_F(MemoryFile, GivesBackWhatWasWrittenAndFailsPastTheEnd)
{
    for (const int count : {0, 1, 262143, 262144, 262145, 2359296, 2359297, 5000000}) {
        SCOPED_TRACE(count);
        Write(count);
        ExpectReadBack(count);
        file.Kill();
    }
}

TEST_F(MemoryFile, IsReplacedByAShorterOne)
{
    Write(300000);
    Write(2);
    ExpectReadBack(2);
}

TEST_F(MemoryFile, IsReadFromItsStartAgainAfterItWasClosed)
{
    Write(5);
    EXPECT_EQ(file.Input(), -100);
    EXPECT_EQ(file.Input(), -99);
    file.Close();
    ExpectReadBack(5);
}

TEST_F(MemoryFile, MayBeDroppedHalfRead)
{
    Write(300000);
    file.Input();
    file.Kill();
    Write(3);
    ExpectReadBack(3);
}

TEST_F(MemoryFile, CannotBeWrittenBeforeItIsOpened)
{
    EXPECT_EQ(FaultIn([&] { file.Write(1); }), FaultKind::InvalidCall);
    Write(1);
    EXPECT_EQ(FaultIn([&] { file.Write(1); }), FaultKind::InvalidCall);
}

// It would take what is being written for what follows.
TEST_F(MemoryFile, IsNotReadOnWhereItsWritingStands)
{
    file.OpenForOutput();
    for (int value = 0; value < 262144; ++value)
        file.Write(value);
    EXPECT_EQ(FaultIn([&] { file.Input(); }), FaultKind::InvalidCall);
}

}  // namespace
}  // namespace pixano::test
