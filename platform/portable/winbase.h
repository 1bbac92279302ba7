// The process, its threads, its memory blocks and its errors, as far as a
// program with windows asks for them. String resources and locales are
// declared in headers of their own.
#pragma once

#include "platform/portable/wintypes.h"

#define ERROR_SUCCESS 0u
#define NO_ERROR 0u
#define ERROR_INVALID_FUNCTION 1u
#define ERROR_FILE_NOT_FOUND 2u
#define ERROR_PATH_NOT_FOUND 3u
#define ERROR_ACCESS_DENIED 5u
#define ERROR_INVALID_HANDLE 6u
#define ERROR_NOT_ENOUGH_MEMORY 8u
#define ERROR_INVALID_DATA 13u
#define ERROR_OUTOFMEMORY 14u
#define ERROR_NOT_SUPPORTED 50u
#define ERROR_INVALID_PARAMETER 87u
#define ERROR_CALL_NOT_IMPLEMENTED 120u
#define ERROR_INSUFFICIENT_BUFFER 122u
#define ERROR_INVALID_NAME 123u
#define ERROR_MOD_NOT_FOUND 126u
#define ERROR_PROC_NOT_FOUND 127u
#define ERROR_ALREADY_EXISTS 183u
#define ERROR_MORE_DATA 234u
#define ERROR_NO_MORE_ITEMS 259u
#define ERROR_INVALID_FLAGS 1004u
#define ERROR_CAN_NOT_COMPLETE 1003u
#define ERROR_KEY_DELETED 1018u
#define ERROR_KEY_HAS_CHILDREN 1020u
#define ERROR_INVALID_WINDOW_HANDLE 1400u
#define ERROR_INVALID_MENU_HANDLE 1401u
#define ERROR_INVALID_CURSOR_HANDLE 1402u
#define ERROR_INVALID_ACCEL_HANDLE 1403u
#define ERROR_INVALID_HOOK_HANDLE 1404u
#define ERROR_INVALID_DWP_HANDLE 1405u
#define ERROR_TLW_WITH_WSCHILD 1406u
#define ERROR_CANNOT_FIND_WND_CLASS 1407u
#define ERROR_WINDOW_OF_OTHER_THREAD 1408u
#define ERROR_HOTKEY_ALREADY_REGISTERED 1409u
#define ERROR_CLASS_ALREADY_EXISTS 1410u
#define ERROR_CLASS_DOES_NOT_EXIST 1411u
#define ERROR_CLASS_HAS_WINDOWS 1412u
#define ERROR_INVALID_INDEX 1413u
#define ERROR_DC_NOT_FOUND 1425u
#define ERROR_INVALID_HOOK_FILTER 1426u
#define ERROR_INVALID_FILTER_PROC 1427u
#define ERROR_HOOK_NEEDS_HMOD 1428u
#define ERROR_CLIPBOARD_NOT_OPEN 1418u
#define ERROR_CONTROL_ID_NOT_FOUND 1421u
#define ERROR_WINDOW_NOT_DIALOG 1420u
#define ERROR_INVALID_MESSAGE 1002u
#define ERROR_INVALID_THREAD_ID 1444u
#define ERROR_NON_MDICHILD_WINDOW 1445u
#define ERROR_POPUP_ALREADY_ACTIVE 1446u
#define ERROR_MENU_ITEM_NOT_FOUND 1456u
#define ERROR_INVALID_KEYBOARD_HANDLE 1457u
#define ERROR_TIMEOUT 1460u
#define ERROR_RESOURCE_DATA_NOT_FOUND 1812u
#define ERROR_RESOURCE_TYPE_NOT_FOUND 1813u
#define ERROR_RESOURCE_NAME_NOT_FOUND 1814u

#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define GMEM_DDESHARE 0x2000
#define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

#define CF_TEXT 1
#define CF_BITMAP 2
#define CF_OEMTEXT 7
#define CF_DIB 8
#define CF_UNICODETEXT 13
#define CF_LOCALE 16

#define INFINITE 0xFFFFFFFF
#define WAIT_OBJECT_0 0u
#define WAIT_TIMEOUT 258u
#define WAIT_FAILED 0xFFFFFFFFu

struct SYSTEMTIME {
    WORD wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
};
using LPSYSTEMTIME = SYSTEMTIME*;

DWORD GetLastError();
void SetLastError(DWORD Error);
DWORD GetCurrentThreadId();
DWORD GetCurrentProcessId();
HANDLE GetCurrentProcess();
void Sleep(DWORD Milliseconds);
DWORD GetTickCount();
ULONGLONG GetTickCount64();
void GetLocalTime(LPSYSTEMTIME Time);
void GetSystemTime(LPSYSTEMTIME Time);
void OutputDebugStringA(LPCSTR Text);

// The running program is the module null; others are loaded shared objects.
HMODULE GetModuleHandleA(LPCSTR Name);
DWORD GetModuleFileNameA(HMODULE Module, LPSTR Name, DWORD Size);

// Loads a shared object by its file name; one without an extension gets ".so", and without a folder it is
// looked for beside the program first. File means nothing. The file name of a module that was loaded as a
// data file is not told. Each load is to be freed.
#define LOAD_LIBRARY_AS_DATAFILE 0x00000002
HMODULE LoadLibraryExA(LPCSTR Name, HANDLE File, DWORD Flags);
BOOL FreeLibrary(HMODULE Module);
// By the exported name; null when there is none.
FARPROC GetProcAddress(HMODULE Module, LPCSTR Name);

// A text of a module's string table; null is the program. Returns its bytes
// without the zero at its end; 0 when there is none. A text that is too long for
// Capacity is cut between characters. Any thread. How it is redirected:
// platform/Strings.h.
int LoadStringA(HINSTANCE Instance, UINT Identifier, LPSTR Buffer, int Capacity);

// Blocks as the clipboard wants them: a handle is the address of its memory.
HGLOBAL GlobalAlloc(UINT Flags, SIZE_T Size);
HGLOBAL GlobalReAlloc(HGLOBAL Block, SIZE_T Size, UINT Flags);
LPVOID GlobalLock(HGLOBAL Block);
BOOL GlobalUnlock(HGLOBAL Block);
SIZE_T GlobalSize(HGLOBAL Block);
HGLOBAL GlobalFree(HGLOBAL Block);

int MulDiv(int Number, int Numerator, int Denominator);

int lstrlenA(LPCSTR Text);
LPSTR lstrcpyA(LPSTR To, LPCSTR From);
LPSTR lstrcpynA(LPSTR To, LPCSTR From, int Size);
