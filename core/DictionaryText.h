// Escaped form: the texts of a dictionary line, which is one line of a file with
// a TAB in its middle.
#pragma once

#include <string>
#include <string_view>

// Backslash, LF, CR and TAB become \\, \n, \r and \t; nothing else is escaped.
std::string WriteString(std::string_view S);

// Every pair of backslashes becomes one, and then every \n, \r and \t the control
// character. In that order, so the two are no exact inverses: a backslash that
// stood before one of the letters n, r, t takes it along. C:\temp is written
// C:\\temp and read as "C:", TAB, "emp".
std::string ReadString(std::string_view S);
