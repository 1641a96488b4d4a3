// The windowed program: makes the application and the session, and runs them.
#include "shell/program.h"

int main(int argc, char* argv[])
{
    return pixano::StartProgram(argc, argv);
}
