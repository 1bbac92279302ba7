// Texts on the clipboard, where all programs can take them from.
#pragma once

#include <string>

#include "platform/winapi.h"

// Owner is a window of the program. Nothing happens while another program holds the
// clipboard.
void SetClipboardText(HWND Owner, const std::string& Text);
// Empty when there is no text.
std::string ClipboardText(HWND Owner);
