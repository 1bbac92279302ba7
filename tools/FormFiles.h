// The files that a command runs over.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/Commands.h"

// What every command that reads forms asks for.
struct TFormInput {
    std::vector<std::string> Paths; // form files, or folders of them
    int CodePage = 1252;            // of 8-bit texts in them

    void Declare(CLI::App& Command);
};

// The files: a folder stands for all form files (.dfm, .lfm, .fmx, .xfm) below
// it, by name. A path that does not exist stands for itself.
std::vector<std::string> FormFilesOf(const std::vector<std::string>& Paths);

// Calls Action for each file. An exception is printed, and the next file follows;
// the result is BadInput then, else the worst that an Action returned.
TOutcome ForEachFormFile(const TFormInput& Input, const std::function<TOutcome(const std::string&)>& Action);
