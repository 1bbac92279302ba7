// The project that a command works on.
#pragma once

#include <string>

#include "tools/Commands.h"
#include "wizard/Globalizer.h"

// What every command over a project asks for.
struct TProjectInput {
    std::string Path;    // a project file or a folder
    int CodePage = 1252; // of 8-bit texts in forms and units
    bool DryRun = false;
    bool Json = false;

    void Declare(CLI::App& Command);

    // Puts right what a killed run has left, and scans the project.
    TProjectScan Scan() const;

    // Carries out the changes, unless it is to be a dry run, and prints them.
    void Finish(const TProjectChanges& Changes) const;
};

// Runs Work; an exception is printed and makes the outcome BadInput.
void RunOnProject(TOutcome& Outcome, const std::function<void()>& Work);
