// What the sources of this folder know about a window. The rest of the system
// sees only handles (winuser.h).
#pragma once

#include <array>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/portable/winuser.h"

struct TWindow;
struct TThread;

// Base of what a built-in control class keeps for each of its windows.
struct TSystemControlState {
    virtual ~TSystemControlState() = default;
};

struct TWindowClass {
    std::string Name;
    ATOM Atom = 0;
    UINT Style = 0;
    WNDPROC Proc = nullptr;
    int WindowExtra = 0;
    HINSTANCE Instance = nullptr;
    HICON Icon = nullptr;
    HICON SmallIcon = nullptr;
    HCURSOR Cursor = nullptr;
    HBRUSH Background = nullptr; // a brush, or a COLOR_ number plus 1
    std::string MenuName;
    std::vector<BYTE> Extra;
    bool BuiltIn = false;
    int Windows = 0; // how many exist
};

// A rectangle that waits for WM_PAINT, in client coordinates.
struct TUpdate {
    bool Pending = false;
    bool Erase = false;
    RECT Rect{};
};

struct TWindowScrollBar {
    int Minimum = 0;
    int Maximum = 100;
    int Position = 0;
    int TrackPosition = 0;
    UINT Page = 0;
    UINT Arrows = 0; // ESB_ flags of what is disabled
};

struct TWindow {
    HWND Handle = nullptr;
    TWindow* Parent = nullptr; // of a top-level window the desktop; null for the desktop
    TWindow* Owner = nullptr;
    std::vector<TWindow*> Children; // topmost first
    std::shared_ptr<TWindowClass> Class;
    std::shared_ptr<TThread> Thread;
    DWORD Style = 0;
    DWORD ExStyle = 0;
    LONG_PTR Id = 0;            // of a child
    HMENU Menu = nullptr;       // of any other window
    HMENU SystemMenu = nullptr; // made when first asked for
    HINSTANCE Instance = nullptr;
    std::string Text;
    HFONT Font = nullptr; // kept by the control classes that answer WM_GETFONT
    RECT Rect{};          // both in the client area of the parent, or of the screen
    RECT Client{};
    RECT Normal{}; // Rect while neither minimized nor maximized
    WNDPROC Proc = nullptr;
    LONG_PTR UserData = 0;
    std::vector<BYTE> Extra; // cbWndExtra bytes
    std::map<std::string, HANDLE> Props;
    std::unique_ptr<TSystemControlState> State;
    std::array<TWindowScrollBar, 2> Scroll; // SB_HORZ, SB_VERT
    TUpdate Update;
    HWND LastActive = nullptr; // last active popup
    HWND SavedFocus = nullptr; // of a dialog
    HICON BigIcon = nullptr;
    HICON SmallIcon = nullptr;
    HRGN Region = nullptr;
    UINT UiState = 0; // UISF_ flags
    bool Redraw = true;
    bool NeedSize = false;           // an overlapped window gets WM_SIZE when first shown
    bool RestoreToMaximized = false; // when it is no longer minimized
    bool IsDialog = false;
    bool IsMdiClient = false;
    bool Destroying = false;

    bool Has(DWORD Bits) const { return (Style & Bits) == Bits; }
    bool IsChild() const { return (Style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }
    int Width() const { return Rect.right - Rect.left; }
    int Height() const { return Rect.bottom - Rect.top; }
    int ClientWidth() const { return Client.right - Client.left; }
    int ClientHeight() const { return Client.bottom - Client.top; }
};

// Guards what threads share: the handle table, the tree, the queues. Hold it
// for short looks and changes only, never while a window procedure runs.
std::recursive_mutex& StateMutex();
class TStateLock {
public:
    TStateLock() : FLock(StateMutex()) {}

private:
    std::lock_guard<std::recursive_mutex> FLock;
};

// The window of a handle; null, with ERROR_INVALID_WINDOW_HANDLE set, when
// there is none. The result lives until the next message is sent, because any
// window procedure may destroy any window.
TWindow* WindowOf(HWND Handle);

// The root of all top-level windows.
TWindow& Desktop();

// The class of that name (without case) or null.
std::shared_ptr<TWindowClass> FindWindowClass(LPCSTR Name);

// Registers the classes of the built-in controls; called once, on the first use
// of a window class. Implemented by the controls, which pass each class to
// RegisterBuiltInClass.
void RegisterBuiltInClasses();
void RegisterBuiltInClass(LPCSTR Name, UINT Style, WNDPROC Proc, int WindowExtra = 0, LPCSTR Cursor = nullptr,
                          HBRUSH Background = nullptr);

// The private state of a control's window, or null: before WM_NCCREATE has
// made it, after WM_NCDESTROY, and when the window is none of that class.
template<typename TState>
TState* StateOf(HWND Handle)
{
    TWindow* const Window = WindowOf(Handle);
    return Window ? dynamic_cast<TState*>(Window->State.get()) : nullptr;
}

// Rect of a window and of its client area on the screen.
RECT ScreenRect(const TWindow& Window);
RECT ScreenClientRect(const TWindow& Window);

// Takes the pending update away and returns it (used by BeginPaint).
TUpdate TakeUpdate(HWND Window);

// Height of the menu bar of a window of the given width; 0 without a menu.
int MenuBarHeight(const TWindow& Window);

// The text of a window as kept here, without asking it, cut to the size of Buffer.
void InternalText(HWND Window, std::string& Buffer);

// Copies at most Size - 1 bytes and
// the final zero, cutting between characters. Returns the bytes copied.
int CopyText(const std::string& Text, LPSTR Buffer, int Size);
