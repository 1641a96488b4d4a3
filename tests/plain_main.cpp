// The tests that need no windows.
#include <gmock/gmock.h>

int main(int argc, char* argv[])
{
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
