// The windowed program: makes the application and the session, and runs them.
#include "shell/start.h"

int main(int argc, char* argv[])
{
    return pixano::StartProgram(argc, argv);
}
