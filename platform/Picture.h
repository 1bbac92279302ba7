// Pictures of windows, to look at a form without a display.
#pragma once

#include <string>

#include "platform/winapi.h"

// Writes the whole window, with its frame and everything inside it, into a PNG
// file. Returns false when the window does not exist or has no size, or the
// file cannot be written.
bool SaveWindowPicture(HWND Window, const std::string& FileName);
