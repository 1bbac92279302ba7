// The Windows API as this system uses it: on Windows the operating system's own
// headers, elsewhere the portable implementation with the same names, types and
// behaviour. Call the byte-string functions by their full names (SetWindowTextA):
// texts are UTF-8 on both. Macros that would rename methods of ours (GetObject,
// SendMessage, Delete...) are taken away.
#pragma once

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cderr.h>
#include <commctrl.h>
#include <commdlg.h>
#include <dlgs.h>
#include <richedit.h>

#include "platform/windows/CleanNames.h"

#else

#include "platform/portable/winbase.h"
#include "platform/portable/wingdi.h"
#include "platform/portable/winnls.h"
#include "platform/portable/winreg.h"
#include "platform/portable/wintypes.h"
#include "platform/portable/winuser.h"

#include "platform/portable/commctrl.h"
#include "platform/portable/commdlg.h"
#include "platform/portable/dlgs.h"

#undef ERROR

#endif
