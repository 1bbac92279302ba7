// What was changed in a project, as a text for its developer.
#pragma once

#include <string>

#include "wizard/ProjectEdit.h"

// How many files changed, and then each file with what was done to it, in lines that
// end in CR LF. FileSize tells the size of a file that was written, in bytes.
std::string ReportOf(const TProjectChanges& Changes, int (*FileSize)(const std::string& FileName));

// A file's name without the folder of the project file.
std::string NameInProject(const std::string& FileName, const std::string& ProjectFileName);
