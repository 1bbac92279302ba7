// The window in which the file dialogs list a folder: a list view inside a frame
// that passes the list view's notifications on to its own parent.
#pragma once

#include <string>
#include <vector>

#include "platform/portable/dialogs/FileNames.h"

// Makes the view inside Dialog; it lists nothing yet.
HWND CreateShellView(HWND Dialog, int Id, bool Multiple);
// Shows the entries of a folder in place of what was there.
void FillShellView(HWND View, const std::vector<TFolderEntry>& Entries);
// Indices of the chosen entries.
std::vector<std::size_t> ChosenInView(HWND View);
