// Windows of several documents in one frame, as creation needs them.
#pragma once

#include "platform/portable/Window.h"

// Adjusts style, size and position of a new document window to its client
// window's rules. False when the parent is no MDICLIENT.
bool PrepareMdiChild(HWND Client, DWORD& Style, DWORD& ExStyle, int& X, int& Y, int& Width, int& Height);
