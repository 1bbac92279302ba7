// The icons of the system that message boxes show. Inner interface of
// platform/portable: only its own sources include it.
#pragma once

#include "platform/portable/wingdi.h"

// Draws Icon if it is that of an error, a question, a warning or an information:
// a sign on a disc or triangle, Width by Height pixels, 0 for the usual size.
// False for all other icons.
bool DrawStandardIcon(HDC Dc, int X, int Y, HICON Icon, int Width, int Height);
