// Programs and documents outside of this program.
#pragma once

#include <string>

// Starts a program by its command line (WinExec on Windows; elsewhere words separated
// by blanks, the program looked for in PATH). Show is the show-window value that it is
// asked to use. False when it cannot be started. Does not wait for its end.
bool StartProgram(const std::string& CommandLine, int Show);

// Opens a file with the program that the user has for it; false when there is none.
bool OpenDocument(const std::string& FileName);
