#include "shell/Program.h"

int main(int /*argumentCount*/, char* arguments[]) { return RunProgram(arguments[0]); }
