// Windows, messages, menus, hooks, input and dialogs, as the Windows API
// declares them. Texts are UTF-8; counts of text buffers are bytes including
// the final zero, and a text that does not fit is cut between characters.
// Functions that fail return FALSE or null and set the last error.
// A window belongs to the thread that created it: only that thread may destroy
// it and only in that thread do its messages arrive. SendMessageA and
// PostMessageA may be called from any thread. Handles are checked, so a handle
// that outlived its window fails like any other wrong handle.
#pragma once

#include "platform/portable/winconstants.h"
#include "platform/portable/winctrl.h"
#include "platform/portable/wingdi.h"
#include "platform/portable/winmessages.h"
#include "platform/portable/wintypes.h"

using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);
using HOOKPROC = LRESULT(CALLBACK*)(int, WPARAM, LPARAM);
using WNDENUMPROC = BOOL(CALLBACK*)(HWND, LPARAM);
using PROPENUMPROCA = BOOL(CALLBACK*)(HWND, LPCSTR, HANDLE);
using MONITORENUMPROC = BOOL(CALLBACK*)(HMONITOR, HDC, LPRECT, LPARAM);

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using LPMSG = MSG*;
using PMSG = MSG*;

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

struct WNDCLASSEXA {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
};

struct CREATESTRUCTA {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
};
using LPCREATESTRUCTA = CREATESTRUCTA*;

struct MDICREATESTRUCTA {
    LPCSTR szClass;
    LPCSTR szTitle;
    HANDLE hOwner;
    int x, y, cx, cy;
    DWORD style;
    LPARAM lParam;
};
using LPMDICREATESTRUCTA = MDICREATESTRUCTA*;

struct CLIENTCREATESTRUCT {
    HANDLE hWindowMenu;
    UINT idFirstChild;
};

struct CBT_CREATEWNDA {
    CREATESTRUCTA* lpcs;
    HWND hwndInsertAfter;
};

struct CBTACTIVATESTRUCT {
    BOOL fMouse;
    HWND hWndActive;
};

struct CWPSTRUCT {
    LPARAM lParam;
    WPARAM wParam;
    UINT message;
    HWND hwnd;
};

struct CWPRETSTRUCT {
    LRESULT lResult;
    LPARAM lParam;
    WPARAM wParam;
    UINT message;
    HWND hwnd;
};

struct STYLESTRUCT {
    DWORD styleOld, styleNew;
};

struct WINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x, y, cx, cy;
    UINT flags;
};
using LPWINDOWPOS = WINDOWPOS*;

struct NCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos;
};

struct WINDOWPLACEMENT {
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;
};

struct MINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};
using LPMINMAXINFO = MINMAXINFO*;

struct MENUITEMINFOA {
    UINT cbSize;
    UINT fMask;
    UINT fType;
    UINT fState;
    UINT wID;
    HMENU hSubMenu;
    HBITMAP hbmpChecked;
    HBITMAP hbmpUnchecked;
    ULONG_PTR dwItemData;
    LPSTR dwTypeData;
    UINT cch;
    HBITMAP hbmpItem;
};
using LPMENUITEMINFOA = MENUITEMINFOA*;

struct MENUINFO {
    DWORD cbSize;
    DWORD fMask;
    DWORD dwStyle;
    UINT cyMax;
    HBRUSH hbrBack;
    DWORD dwContextHelpID;
    ULONG_PTR dwMenuData;
};

struct TPMPARAMS {
    UINT cbSize;
    RECT rcExclude;
};

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using LPNMHDR = NMHDR*;

struct TRACKMOUSEEVENT {
    DWORD cbSize;
    DWORD dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
};

struct HELPINFO {
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};
using LPHELPINFO = HELPINFO*;

struct SCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int nMin, nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
};
using LPSCROLLINFO = SCROLLINFO*;

struct ACCEL {
    BYTE fVirt;
    WORD key;
    WORD cmd;
};

struct ICONINFO {
    BOOL fIcon;
    DWORD xHotspot;
    DWORD yHotspot;
    HBITMAP hbmMask;
    HBITMAP hbmColor;
};

struct NONCLIENTMETRICSA {
    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth, iScrollHeight;
    int iCaptionWidth, iCaptionHeight;
    LOGFONTA lfCaptionFont;
    int iSmCaptionWidth, iSmCaptionHeight;
    LOGFONTA lfSmCaptionFont;
    int iMenuWidth, iMenuHeight;
    LOGFONTA lfMenuFont;
    LOGFONTA lfStatusFont;
    LOGFONTA lfMessageFont;
    int iPaddedBorderWidth;
};

struct ICONMETRICSA {
    UINT cbSize;
    int iHorzSpacing;
    int iVertSpacing;
    int iTitleWrap;
    LOGFONTA lfFont;
};

struct MONITORINFO {
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork;
    DWORD dwFlags;
};
using LPMONITORINFO = MONITORINFO*;

struct MSGBOXPARAMSA {
    UINT cbSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCSTR lpszText;
    LPCSTR lpszCaption;
    DWORD dwStyle;
    LPCSTR lpszIcon;
    DWORD_PTR dwContextHelpId;
    void(CALLBACK* lpfnMsgBoxCallback)(HELPINFO*);
    DWORD dwLanguageId;
};

struct GUITHREADINFO {
    DWORD cbSize;
    DWORD flags;
    HWND hwndActive, hwndFocus, hwndCapture, hwndMenuOwner, hwndMoveSize, hwndCaret;
    RECT rcCaret;
};

#pragma pack(push, 2)
struct DLGTEMPLATE {
    DWORD style;
    DWORD dwExtendedStyle;
    WORD cdit;
    short x, y, cx, cy; // dialog units
};
struct DLGITEMTEMPLATE {
    DWORD style;
    DWORD dwExtendedStyle;
    short x, y, cx, cy;
    WORD id;
};
#pragma pack(pop)
using LPCDLGTEMPLATEA = const DLGTEMPLATE*;
using LPCDLGTEMPLATE = const DLGTEMPLATE*;

// Classes
ATOM RegisterClassA(const WNDCLASSA* Class);
ATOM RegisterClassExA(const WNDCLASSEXA* Class);
BOOL UnregisterClassA(LPCSTR Name, HINSTANCE Instance);
BOOL GetClassInfoA(HINSTANCE Instance, LPCSTR Name, WNDCLASSA* Info);
BOOL GetClassInfoExA(HINSTANCE Instance, LPCSTR Name, WNDCLASSEXA* Info);
int GetClassNameA(HWND Window, LPSTR Name, int Size);
ULONG_PTR GetClassLongPtrA(HWND Window, int Index);
ULONG_PTR SetClassLongPtrA(HWND Window, int Index, LONG_PTR Value);
DWORD GetClassLongA(HWND Window, int Index);
DWORD SetClassLongA(HWND Window, int Index, LONG Value);

// Windows
HWND CreateWindowExA(DWORD ExStyle, LPCSTR ClassName, LPCSTR Text, DWORD Style, int X, int Y, int Width,
                     int Height, HWND Parent, HMENU Menu, HINSTANCE Instance, LPVOID Param);
BOOL DestroyWindow(HWND Window);
BOOL IsWindow(HWND Window);
BOOL IsWindowUnicode(HWND Window);
LRESULT DefWindowProcA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
LRESULT CallWindowProcA(WNDPROC Proc, HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
LONG_PTR GetWindowLongPtrA(HWND Window, int Index);
LONG_PTR SetWindowLongPtrA(HWND Window, int Index, LONG_PTR Value);
LONG GetWindowLongA(HWND Window, int Index);
LONG SetWindowLongA(HWND Window, int Index, LONG Value);
BOOL SetPropA(HWND Window, LPCSTR Name, HANDLE Value);
HANDLE GetPropA(HWND Window, LPCSTR Name);
HANDLE RemovePropA(HWND Window, LPCSTR Name);
int EnumPropsA(HWND Window, PROPENUMPROCA Proc);
BOOL SetWindowTextA(HWND Window, LPCSTR Text);
int GetWindowTextA(HWND Window, LPSTR Text, int Size);
int GetWindowTextLengthA(HWND Window);

// The tree
HWND GetDesktopWindow();
HWND GetParent(HWND Window);
HWND SetParent(HWND Window, HWND Parent);
HWND GetAncestor(HWND Window, UINT Kind);
HWND GetWindow(HWND Window, UINT Relation);
HWND GetTopWindow(HWND Window);
HWND GetLastActivePopup(HWND Window);
#define GetNextWindow(Window, Relation) GetWindow(Window, Relation)
BOOL IsChild(HWND Parent, HWND Window);
BOOL EnumChildWindows(HWND Parent, WNDENUMPROC Proc, LPARAM Param);
BOOL EnumWindows(WNDENUMPROC Proc, LPARAM Param);
BOOL EnumThreadWindows(DWORD Thread, WNDENUMPROC Proc, LPARAM Param);
#define EnumTaskWindows(Task, Proc, Param) EnumThreadWindows((DWORD)(DWORD_PTR)(Task), Proc, Param)
HWND FindWindowA(LPCSTR ClassName, LPCSTR Text);
HWND FindWindowExA(HWND Parent, HWND After, LPCSTR ClassName, LPCSTR Text);
DWORD GetWindowThreadProcessId(HWND Window, LPDWORD Process);
BOOL AnyPopup();

// Position and size: pixels; of a child in its parent's client area, else of the screen
BOOL SetWindowPos(HWND Window, HWND After, int X, int Y, int Width, int Height, UINT Flags);
HDWP BeginDeferWindowPos(int Count);
HDWP DeferWindowPos(HDWP List, HWND Window, HWND After, int X, int Y, int Width, int Height, UINT Flags);
BOOL EndDeferWindowPos(HDWP List);
BOOL MoveWindow(HWND Window, int X, int Y, int Width, int Height, BOOL Repaint);
BOOL ShowWindow(HWND Window, int Command);
BOOL ShowWindowAsync(HWND Window, int Command);
BOOL ShowOwnedPopups(HWND Window, BOOL Show);
BOOL CloseWindow(HWND Window);
BOOL OpenIcon(HWND Window);
BOOL BringWindowToTop(HWND Window);
BOOL IsWindowVisible(HWND Window);
BOOL IsWindowEnabled(HWND Window);
BOOL EnableWindow(HWND Window, BOOL Enable);
BOOL IsIconic(HWND Window);
BOOL IsZoomed(HWND Window);
BOOL GetWindowPlacement(HWND Window, WINDOWPLACEMENT* Placement);
BOOL SetWindowPlacement(HWND Window, const WINDOWPLACEMENT* Placement);
UINT ArrangeIconicWindows(HWND Window);
WORD CascadeWindows(HWND Parent, UINT How, const RECT* Rect, UINT Count, const HWND* Kids);
WORD TileWindows(HWND Parent, UINT How, const RECT* Rect, UINT Count, const HWND* Kids);
BOOL GetWindowRect(HWND Window, LPRECT Rect);
BOOL GetClientRect(HWND Window, LPRECT Rect);
BOOL AdjustWindowRect(LPRECT Rect, DWORD Style, BOOL Menu);
BOOL AdjustWindowRectEx(LPRECT Rect, DWORD Style, BOOL Menu, DWORD ExStyle);
BOOL ClientToScreen(HWND Window, LPPOINT Point);
BOOL ScreenToClient(HWND Window, LPPOINT Point);
int MapWindowPoints(HWND From, HWND To, LPPOINT Points, UINT Count);
HWND WindowFromPoint(POINT Point);
HWND ChildWindowFromPoint(HWND Window, POINT Point);
HWND ChildWindowFromPointEx(HWND Window, POINT Point, UINT Flags);
HWND RealChildWindowFromPoint(HWND Window, POINT Point);
BOOL AnimateWindow(HWND Window, DWORD Time, DWORD Flags);
BOOL SetLayeredWindowAttributes(HWND Window, COLORREF Key, BYTE Alpha, DWORD Flags);
int SetWindowRgn(HWND Window, HRGN Region, BOOL Redraw);
int GetWindowRgn(HWND Window, HRGN Region);

// What waits for painting
BOOL InvalidateRect(HWND Window, const RECT* Rect, BOOL Erase);
BOOL InvalidateRgn(HWND Window, HRGN Region, BOOL Erase);
BOOL ValidateRect(HWND Window, const RECT* Rect);
BOOL ValidateRgn(HWND Window, HRGN Region);
BOOL UpdateWindow(HWND Window);
BOOL RedrawWindow(HWND Window, const RECT* Rect, HRGN Region, UINT Flags);
BOOL GetUpdateRect(HWND Window, LPRECT Rect, BOOL Erase);
int GetUpdateRgn(HWND Window, HRGN Region, BOOL Erase);
BOOL LockWindowUpdate(HWND Window);

// Scroll bars
int SetScrollInfo(HWND Window, int Bar, const SCROLLINFO* Info, BOOL Redraw);
BOOL GetScrollInfo(HWND Window, int Bar, SCROLLINFO* Info);
int SetScrollPos(HWND Window, int Bar, int Position, BOOL Redraw);
int GetScrollPos(HWND Window, int Bar);
BOOL SetScrollRange(HWND Window, int Bar, int Minimum, int Maximum, BOOL Redraw);
BOOL GetScrollRange(HWND Window, int Bar, LPINT Minimum, LPINT Maximum);
BOOL ShowScrollBar(HWND Window, int Bar, BOOL Show);
BOOL EnableScrollBar(HWND Window, UINT Bar, UINT Arrows);
BOOL ScrollWindow(HWND Window, int X, int Y, const RECT* Rect, const RECT* Clip);
int ScrollWindowEx(HWND Window, int X, int Y, const RECT* Rect, const RECT* Clip, HRGN Update,
                   LPRECT UpdateRect, UINT Flags);

// Activation, focus, mouse and keys
HWND SetActiveWindow(HWND Window);
HWND GetActiveWindow();
BOOL SetForegroundWindow(HWND Window);
HWND GetForegroundWindow();
HWND SetFocus(HWND Window);
HWND GetFocus();
HWND SetCapture(HWND Window);
HWND GetCapture();
BOOL ReleaseCapture();
BOOL FlashWindow(HWND Window, BOOL Invert);
BOOL AttachThreadInput(DWORD Thread, DWORD To, BOOL Attach);
BOOL GetGUIThreadInfo(DWORD Thread, GUITHREADINFO* Info);
BOOL TrackMouseEvent(TRACKMOUSEEVENT* Event);
BOOL DragDetect(HWND Window, POINT Point);
UINT GetDoubleClickTime();
SHORT GetKeyState(int Key);
SHORT GetAsyncKeyState(int Key);
BOOL GetKeyboardState(PBYTE State);
BOOL SetKeyboardState(LPBYTE State);
SHORT VkKeyScanA(CHAR Character);
void keybd_event(BYTE Key, BYTE Scan, DWORD Flags, ULONG_PTR Extra);
UINT MapVirtualKeyA(UINT Code, UINT Kind);
int GetKeyNameTextA(LONG LParam, LPSTR Name, int Size);
HKL GetKeyboardLayout(DWORD Thread);
int GetKeyboardLayoutList(int Count, HKL* List);
HKL LoadKeyboardLayoutA(LPCSTR Name, UINT Flags);
HKL ActivateKeyboardLayout(HKL Layout, UINT Flags);
BOOL RegisterHotKey(HWND Window, int Id, UINT Modifiers, UINT Key);
BOOL UnregisterHotKey(HWND Window, int Id);
BOOL CreateCaret(HWND Window, HBITMAP Bitmap, int Width, int Height);
BOOL DestroyCaret();
BOOL SetCaretPos(int X, int Y);
BOOL GetCaretPos(LPPOINT Point);
BOOL ShowCaret(HWND Window);
BOOL HideCaret(HWND Window);
UINT GetCaretBlinkTime();

// Messages
LRESULT SendMessageA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
LRESULT SendMessageTimeoutA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam, UINT Flags, UINT Timeout,
                            DWORD_PTR* Result);
BOOL SendNotifyMessageA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
BOOL PostMessageA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
BOOL PostThreadMessageA(DWORD Thread, UINT Message, WPARAM WParam, LPARAM LParam);
void PostQuitMessage(int ExitCode);
BOOL PeekMessageA(LPMSG Message, HWND Window, UINT First, UINT Last, UINT Flags);
BOOL GetMessageA(LPMSG Message, HWND Window, UINT First, UINT Last);
BOOL TranslateMessage(const MSG* Message);
LRESULT DispatchMessageA(const MSG* Message);
BOOL WaitMessage();
DWORD MsgWaitForMultipleObjects(DWORD Count, const HANDLE* Handles, BOOL All, DWORD Milliseconds, DWORD Mask);
BOOL InSendMessage();
BOOL ReplyMessage(LRESULT Result);
DWORD GetMessageTime();
DWORD GetMessagePos();
LPARAM GetMessageExtraInfo();
DWORD GetQueueStatus(UINT Flags);
BOOL GetInputState();
UINT RegisterWindowMessageA(LPCSTR Name);
UINT_PTR SetTimer(HWND Window, UINT_PTR Id, UINT Milliseconds, TIMERPROC Proc);
BOOL KillTimer(HWND Window, UINT_PTR Id);

// Hooks of the calling thread
HHOOK SetWindowsHookExA(int Kind, HOOKPROC Proc, HINSTANCE Module, DWORD Thread);
BOOL UnhookWindowsHookEx(HHOOK Hook);
LRESULT CallNextHookEx(HHOOK Hook, int Code, WPARAM WParam, LPARAM LParam);
BOOL CallMsgFilterA(LPMSG Message, int Code);

// Menus
HMENU CreateMenu();
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU Menu);
BOOL IsMenu(HMENU Menu);
BOOL AppendMenuA(HMENU Menu, UINT Flags, UINT_PTR Id, LPCSTR Text);
BOOL InsertMenuA(HMENU Menu, UINT Item, UINT Flags, UINT_PTR Id, LPCSTR Text);
BOOL ModifyMenuA(HMENU Menu, UINT Item, UINT Flags, UINT_PTR Id, LPCSTR Text);
BOOL RemoveMenu(HMENU Menu, UINT Item, UINT Flags);
BOOL DeleteMenu(HMENU Menu, UINT Item, UINT Flags);
BOOL InsertMenuItemA(HMENU Menu, UINT Item, BOOL ByPosition, const MENUITEMINFOA* Info);
BOOL GetMenuItemInfoA(HMENU Menu, UINT Item, BOOL ByPosition, MENUITEMINFOA* Info);
BOOL SetMenuItemInfoA(HMENU Menu, UINT Item, BOOL ByPosition, const MENUITEMINFOA* Info);
BOOL GetMenuInfo(HMENU Menu, MENUINFO* Info);
BOOL SetMenuInfo(HMENU Menu, const MENUINFO* Info);
int GetMenuStringA(HMENU Menu, UINT Item, LPSTR Text, int Size, UINT Flags);
UINT GetMenuState(HMENU Menu, UINT Item, UINT Flags);
int GetMenuItemCount(HMENU Menu);
UINT GetMenuItemID(HMENU Menu, int Position);
HMENU GetSubMenu(HMENU Menu, int Position);
DWORD CheckMenuItem(HMENU Menu, UINT Item, UINT Flags);
BOOL EnableMenuItem(HMENU Menu, UINT Item, UINT Flags);
BOOL CheckMenuRadioItem(HMENU Menu, UINT First, UINT Last, UINT Checked, UINT Flags);
BOOL SetMenuDefaultItem(HMENU Menu, UINT Item, UINT ByPosition);
UINT GetMenuDefaultItem(HMENU Menu, UINT ByPosition, UINT Flags);
BOOL HiliteMenuItem(HWND Window, HMENU Menu, UINT Item, UINT Flags);
BOOL SetMenuItemBitmaps(HMENU Menu, UINT Item, UINT Flags, HBITMAP Unchecked, HBITMAP Checked);
BOOL GetMenuItemRect(HWND Window, HMENU Menu, UINT Item, LPRECT Rect);
int MenuItemFromPoint(HWND Window, HMENU Menu, POINT Point);
LONG GetMenuCheckMarkDimensions();
HMENU GetMenu(HWND Window);
BOOL SetMenu(HWND Window, HMENU Menu);
BOOL DrawMenuBar(HWND Window);
HMENU GetSystemMenu(HWND Window, BOOL Revert);
BOOL TrackPopupMenu(HMENU Menu, UINT Flags, int X, int Y, int Reserved, HWND Window, const RECT* Rect);
BOOL TrackPopupMenuEx(HMENU Menu, UINT Flags, int X, int Y, HWND Window, TPMPARAMS* Params);
BOOL EndMenu();
HACCEL CreateAcceleratorTableA(ACCEL* Keys, int Count);
BOOL DestroyAcceleratorTable(HACCEL Table);
int CopyAcceleratorTableA(HACCEL Table, ACCEL* Keys, int Count);
int TranslateAcceleratorA(HWND Window, HACCEL Table, LPMSG Message);

// Several documents in one frame
LRESULT DefFrameProcA(HWND Frame, HWND Client, UINT Message, WPARAM WParam, LPARAM LParam);
LRESULT DefMDIChildProcA(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);
BOOL TranslateMDISysAccel(HWND Client, LPMSG Message);
HWND CreateMDIWindowA(LPCSTR ClassName, LPCSTR Text, DWORD Style, int X, int Y, int Width, int Height,
                      HWND Client, HINSTANCE Instance, LPARAM LParam);

// Dialogs
HWND CreateDialogIndirectParamA(HINSTANCE Instance, LPCDLGTEMPLATEA Template, HWND Owner, DLGPROC Proc,
                                LPARAM Param);
INT_PTR DialogBoxIndirectParamA(HINSTANCE Instance, LPCDLGTEMPLATEA Template, HWND Owner, DLGPROC Proc,
                                LPARAM Param);
BOOL EndDialog(HWND Dialog, INT_PTR Result);
LRESULT DefDlgProcA(HWND Dialog, UINT Message, WPARAM WParam, LPARAM LParam);
BOOL IsDialogMessageA(HWND Dialog, LPMSG Message);
BOOL MapDialogRect(HWND Dialog, LPRECT Rect);
LONG GetDialogBaseUnits();
HWND GetDlgItem(HWND Dialog, int Id);
int GetDlgCtrlID(HWND Window);
BOOL SetDlgItemTextA(HWND Dialog, int Id, LPCSTR Text);
UINT GetDlgItemTextA(HWND Dialog, int Id, LPSTR Text, int Size);
BOOL SetDlgItemInt(HWND Dialog, int Id, UINT Value, BOOL Signed);
UINT GetDlgItemInt(HWND Dialog, int Id, BOOL* Translated, BOOL Signed);
LRESULT SendDlgItemMessageA(HWND Dialog, int Id, UINT Message, WPARAM WParam, LPARAM LParam);
HWND GetNextDlgTabItem(HWND Dialog, HWND Control, BOOL Previous);
HWND GetNextDlgGroupItem(HWND Dialog, HWND Control, BOOL Previous);
int MessageBoxA(HWND Owner, LPCSTR Text, LPCSTR Caption, UINT Type);
int MessageBoxExA(HWND Owner, LPCSTR Text, LPCSTR Caption, UINT Type, WORD Language);
int MessageBoxIndirectA(const MSGBOXPARAMSA* Params);
BOOL MessageBeep(UINT Kind);

// Cursors and icons
HCURSOR LoadCursorA(HINSTANCE Instance, LPCSTR Name);
HCURSOR SetCursor(HCURSOR Cursor);
HCURSOR GetCursor();
BOOL DestroyCursor(HCURSOR Cursor);
int ShowCursor(BOOL Show);
BOOL GetCursorPos(LPPOINT Point);
BOOL SetCursorPos(int X, int Y);
BOOL ClipCursor(const RECT* Rect);
HICON LoadIconA(HINSTANCE Instance, LPCSTR Name);
HICON CreateIcon(HINSTANCE Instance, int Width, int Height, BYTE Planes, BYTE BitsPixel, const BYTE* AndBits,
                 const BYTE* XorBits);
HICON CreateIconIndirect(ICONINFO* Info);
HICON CopyIcon(HICON Icon);
BOOL DestroyIcon(HICON Icon);
BOOL GetIconInfo(HICON Icon, ICONINFO* Info);
HANDLE LoadImageA(HINSTANCE Instance, LPCSTR Name, UINT Kind, int Width, int Height, UINT Flags);

// The system
int GetSystemMetrics(int Index);
DWORD GetSysColor(int Index);
HBRUSH GetSysColorBrush(int Index);
BOOL SystemParametersInfoA(UINT Action, UINT Param, LPVOID Data, UINT Flags);
HMONITOR MonitorFromWindow(HWND Window, DWORD Flags);
HMONITOR MonitorFromPoint(POINT Point, DWORD Flags);
HMONITOR MonitorFromRect(LPCRECT Rect, DWORD Flags);
BOOL GetMonitorInfoA(HMONITOR Monitor, LPMONITORINFO Info);
BOOL EnumDisplayMonitors(HDC Dc, LPCRECT Clip, MONITORENUMPROC Proc, LPARAM Param);
BOOL WinHelpA(HWND Window, LPCSTR Help, UINT Command, ULONG_PTR Data);

// The clipboard of this process
BOOL OpenClipboard(HWND Window);
BOOL CloseClipboard();
BOOL EmptyClipboard();
HANDLE SetClipboardData(UINT Format, HANDLE Data);
HANDLE GetClipboardData(UINT Format);
BOOL IsClipboardFormatAvailable(UINT Format);
UINT EnumClipboardFormats(UINT Format);
int CountClipboardFormats();
UINT RegisterClipboardFormatA(LPCSTR Name);
HWND GetClipboardOwner();

// Rectangles
BOOL SetRect(LPRECT Rect, int Left, int Top, int Right, int Bottom);
BOOL SetRectEmpty(LPRECT Rect);
BOOL CopyRect(LPRECT To, const RECT* From);
BOOL InflateRect(LPRECT Rect, int X, int Y);
BOOL OffsetRect(LPRECT Rect, int X, int Y);
BOOL IntersectRect(LPRECT To, const RECT* First, const RECT* Second);
BOOL UnionRect(LPRECT To, const RECT* First, const RECT* Second);
BOOL SubtractRect(LPRECT To, const RECT* First, const RECT* Second);
BOOL IsRectEmpty(const RECT* Rect);
BOOL EqualRect(const RECT* First, const RECT* Second);
BOOL PtInRect(const RECT* Rect, POINT Point);

// Strings
LPSTR CharUpperA(LPSTR Text);
LPSTR CharLowerA(LPSTR Text);
DWORD CharUpperBuffA(LPSTR Text, DWORD Count);
DWORD CharLowerBuffA(LPSTR Text, DWORD Count);
LPSTR CharNextA(LPCSTR Text);
LPSTR CharPrevA(LPCSTR Start, LPCSTR Text);
