// A walk through all pages of the translators' editors without a user.
#pragma once

#include <string>

// Opens the editor of each kind of translator that the booking desk has, in each
// language, and writes a picture of every page into the folder, which is made when
// missing. Returns what main returns: 0, or 1 when something failed.
int RunEditorTour(const std::string& Folder);
