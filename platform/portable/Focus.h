// Activation, as the sources of this folder share it.
#pragma once

#include "platform/portable/Window.h"

enum class TByMouse { No, Yes };

// Makes a top-level window the active one and, when it holds no focus yet,
// gives it the focus. False when a hook refuses.
bool ActivateWindow(HWND Window, TByMouse Mouse, bool Focus);

// Activates what the user should see next when a window goes away.
void ActivateOther(HWND Leaving);
