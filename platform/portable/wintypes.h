// The basic types of the Windows API with the sizes that a 64-bit Windows gives
// them: LONG, DWORD and BOOL have 32 bits, WPARAM, LPARAM and LRESULT those of a
// pointer. Included through platform/winapi.h.
#pragma once

#include <cstddef>
#include <cstdint>

#define CALLBACK
#define WINAPI
#define APIENTRY
#define PASCAL
#define WINUSERAPI
#define FALSE 0
#define TRUE 1
#define MAX_PATH 260

using BOOL = int;
using BYTE = unsigned char;
using CHAR = char;
using UCHAR = unsigned char;
using WCHAR = char16_t;
using SHORT = short;
using USHORT = unsigned short;
using WORD = unsigned short;
using ATOM = unsigned short;
using LANGID = unsigned short;
using INT = int;
using UINT = unsigned int;
using LONG = int;
using ULONG = unsigned int;
using DWORD = unsigned int;
using LCID = unsigned int;
using LCTYPE = unsigned int;
using COLORREF = unsigned int;
using REGSAM = unsigned int;
using FLOAT = float;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using DWORDLONG = unsigned long long;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = int;
using LSTATUS = int;

using PVOID = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using HANDLE = void*;
using LPSTR = char*;
using PSTR = char*;
using LPCSTR = const char*;
using PCSTR = const char*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPBYTE = BYTE*;
using PBYTE = BYTE*;
using LPWORD = WORD*;
using PWORD = WORD*;
using LPDWORD = DWORD*;
using PDWORD = DWORD*;
using LPINT = int*;
using LPLONG = LONG*;
using PUINT = UINT*;
using LPBOOL = BOOL*;
using LPCOLORREF = COLORREF*;

// Handles are numbers in the shape of pointers; never dereference one. A handle
// of something that was destroyed is not given out again for a long time.
#define DECLARE_HANDLE(Name)                                                                                 \
    struct Name##__;                                                                                         \
    using Name = Name##__*
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HPALETTE);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HHOOK);
DECLARE_HANDLE(HACCEL);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HKEY);
DECLARE_HANDLE(HKL);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HMONITOR);
DECLARE_HANDLE(HDWP);
using HGDIOBJ = void*;
using HGLOBAL = void*;
using HLOCAL = void*;
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using PHKEY = HKEY*;
using FARPROC = INT_PTR (*)();
using PROC = INT_PTR (*)();

struct POINT {
    LONG x, y;
};
using LPPOINT = POINT*;
using PPOINT = POINT*;

struct POINTS {
    SHORT x, y;
};

struct SIZE {
    LONG cx, cy;
};
using LPSIZE = SIZE*;

struct RECT {
    LONG left, top, right, bottom;
};
using LPRECT = RECT*;
using PRECT = RECT*;
using LPCRECT = const RECT*;

struct FILETIME {
    DWORD dwLowDateTime, dwHighDateTime;
};
using PFILETIME = FILETIME*;

#define LOBYTE(Value) (static_cast<BYTE>((DWORD_PTR)(Value)&0xff))
#define HIBYTE(Value) (static_cast<BYTE>(((DWORD_PTR)(Value) >> 8) & 0xff))
#define LOWORD(Value) (static_cast<WORD>((DWORD_PTR)(Value)&0xffff))
#define HIWORD(Value) (static_cast<WORD>(((DWORD_PTR)(Value) >> 16) & 0xffff))
#define MAKEWORD(Low, High) (static_cast<WORD>(((Low)&0xff) | (((High)&0xff) << 8)))
#define MAKELONG(Low, High) (static_cast<LONG>(((DWORD)(Low)&0xffff) | (((DWORD)(High)&0xffff) << 16)))
#define MAKEWPARAM(Low, High) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(Low, High))))
#define MAKELPARAM(Low, High) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(Low, High))))
#define MAKELRESULT(Low, High) (static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(Low, High))))
#define MAKEINTRESOURCEA(Id) ((LPSTR)((ULONG_PTR)((WORD)(Id))))
#define MAKEINTATOM(Id) MAKEINTRESOURCEA(Id)
#define IS_INTRESOURCE(Name) ((((ULONG_PTR)(Name)) >> 16) == 0)
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)
