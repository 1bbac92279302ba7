// A walk through all forms and languages without a user.
#pragma once

#include <string>

// Shows every form and message box in every language: writes a picture of each into
// the folder, which is made when missing, and prints what changed and what the boxes
// say. Ends in the forms' own language and checks that every property is what it
// was, the forms, written as form files, and the messages, too; then shows each kind
// of language selector. Returns what main returns: 0, or 1 when something failed.
int RunTour(const std::string& Folder);
