// The string table of the running module, and the slot through which the module
// calls LoadStringA.
#pragma once

#include "platform/winapi.h"

// The module that this code is linked into: a program, or a library that links
// the framework itself. Constant, and known before any object is built.
extern HINSTANCE HInstance;

using TLoadStringA = int(WINAPI*)(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity);

// What every call of LoadStringA in this module ends in: on Windows the module's
// import slot, elsewhere the one that the portable LoadStringA looks at.
// Any thread.
TLoadStringA LoadStringSlot();

// Puts another function there. Calls under way on other threads end in the old
// one. On Windows the slot's page is made writable for the moment; false, with
// the slot as it was, when the system refuses that.
bool SetLoadStringSlot(TLoadStringA Loader);
