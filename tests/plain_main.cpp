// The tests that need no windows.
#include <gtest/gtest.h>

#include <sys/stat.h>

int main(int argc, char* argv[])
{
    // Tests become another user now and then, who must get into the folders that they make.
    umask(022);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
