// orbilex: form files and their translations on the command line.
#pragma once

// Runs one command. Returns the exit code: 0 fine, 1 findings, 2 wrong use or
// bad input. Answers go to std::cout, errors to std::cerr.
int RunOrbilex(int ArgumentCount, const char* const* Arguments);
