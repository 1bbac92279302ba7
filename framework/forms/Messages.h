// Window messages as controls handle them, and the framework's own messages.
// Units of this folder include the Windows API through this header, because it
// takes back the macros whose names methods of the framework have.
#pragma once

#include <cstdint>

#include "platform/winapi.h"

#undef CreateWindow
#undef DispatchMessage
#undef DrawText
#undef FindWindow
#undef GetClassName
#undef GetMessage
#undef GetObject
#undef LoadCursor
#undef LoadIcon
#undef LoadString
#undef MessageBox
#undef RegisterClass
#undef SendMessage
#undef TextOut
#undef UnregisterClass
#undef WinHelp
#undef Yield

// A message on its way through a control's WndProc; Result is its answer.
struct TMessage {
    UINT Msg = 0;
    WPARAM WParam = 0;
    LPARAM LParam = 0;
    LRESULT Result = 0;

    // Client coordinates of mouse messages.
    int X() const { return static_cast<int16_t>(LParam & 0xffff); }
    int Y() const { return static_cast<int16_t>(LParam >> 16 & 0xffff); }
    // Notification code and identifier of commands.
    int Code() const { return static_cast<int>(WParam >> 16 & 0xffff); }
    int Id() const { return static_cast<int>(WParam & 0xffff); }
};

// Sent between controls.
enum : UINT {
    CM_BASE = 0xB000,
    CM_ACTIVATE = CM_BASE,
    CM_DEACTIVATE,
    CM_GOTFOCUS,
    CM_LOSTFOCUS,
    CM_CANCELMODE,   // LParam: the TControl that the user turns to
    CM_DIALOGKEY,    // WParam: virtual key; Result 1 when handled
    CM_DIALOGCHAR,   // WParam: character; Result 1 when handled
    CM_FOCUSCHANGED, // LParam: the TWinControl that gets the focus
    CM_PARENTFONTCHANGED,
    CM_PARENTCOLORCHANGED,
    CM_HITTEST,        // LParam: point; Result HTNOWHERE lets clicks through
    CM_VISIBLECHANGED, // WParam: visible
    CM_ENABLEDCHANGED,
    CM_COLORCHANGED,
    CM_FONTCHANGED,
    CM_CURSORCHANGED,
    CM_CTL3DCHANGED,
    CM_PARENTCTL3DCHANGED,
    CM_TEXTCHANGED,
    CM_MOUSEENTER, // LParam: the TControl below that reports it, or 0
    CM_MOUSELEAVE,
    CM_MENUCHANGED,
    CM_APPKEYDOWN,
    CM_APPSYSCOMMAND,
    CM_BUTTONPRESSED, // WParam: group index, LParam: the button
    CM_SHOWINGCHANGED,
    CM_ENTER,
    CM_EXIT,
    CM_DESIGNHITTEST,
    CM_ICONCHANGED,
    CM_WANTSPECIALKEY, // WParam: virtual key; Result 1 keeps it from the dialog keys
    CM_INVOKEHELP,
    CM_WINDOWHOOK,
    CM_RELEASE,
    CM_SHOWHINTCHANGED,
    CM_PARENTSHOWHINTCHANGED,
    CM_SYSCOLORCHANGE,
    CM_WININICHANGE,
    CM_FONTCHANGE,
    CM_TIMECHANGE,
    CM_TABSTOPCHANGED,
    CM_UIACTIVATE,
    CM_UIDEACTIVATE,
    CM_DOCWINDOWACTIVATE,
    CM_CONTROLLISTCHANGE, // WParam: the TControl, LParam: inserted
    CM_GETDATALINK,
    CM_CHILDKEY, // WParam: virtual key, LParam: the child; Result 1 when handled
    CM_DRAG,
    CM_HINTSHOW,
    CM_DIALOGHANDLE,
    CM_ISTOOLCONTROL,
    CM_RECREATEWND,
    CM_INVALIDATE,
    CM_SYSFONTCHANGED,
    CM_CONTROLCHANGE, // WParam: the TControl, LParam: inserted
    CM_CHANGED,       // LParam: the child that changed
    CM_DOCKCLIENT,
    CM_UNDOCKCLIENT,
    CM_FLOAT,
    CM_BORDERCHANGED,
    CM_BIDIMODECHANGED,
    CM_PARENTBIDIMODECHANGED,
    CM_ALLCHILDRENFLIPPED,
    CM_ACTIONUPDATE, // LParam: the action; Result 1 when handled
    CM_ACTIONEXECUTE,
    CM_HINTSHOWPAUSE,
    CM_DOCKNOTIFICATION,
    CM_MOUSEWHEEL,
    CM_ISSHORTCUT
};

// Notifications that a window sends to its parent come back to the control
// itself with CN_BASE added: CN_BASE + WM_COMMAND.
enum : UINT {
    CN_BASE = 0xBC00,
    CN_CHARTOITEM = CN_BASE + WM_CHARTOITEM,
    CN_COMMAND = CN_BASE + WM_COMMAND,
    CN_COMPAREITEM = CN_BASE + WM_COMPAREITEM,
    CN_CTLCOLORBTN = CN_BASE + WM_CTLCOLORBTN,
    CN_CTLCOLORDLG = CN_BASE + WM_CTLCOLORDLG,
    CN_CTLCOLOREDIT = CN_BASE + WM_CTLCOLOREDIT,
    CN_CTLCOLORLISTBOX = CN_BASE + WM_CTLCOLORLISTBOX,
    CN_CTLCOLORMSGBOX = CN_BASE + WM_CTLCOLORMSGBOX,
    CN_CTLCOLORSCROLLBAR = CN_BASE + WM_CTLCOLORSCROLLBAR,
    CN_CTLCOLORSTATIC = CN_BASE + WM_CTLCOLORSTATIC,
    CN_DELETEITEM = CN_BASE + WM_DELETEITEM,
    CN_DRAWITEM = CN_BASE + WM_DRAWITEM,
    CN_HSCROLL = CN_BASE + WM_HSCROLL,
    CN_MEASUREITEM = CN_BASE + WM_MEASUREITEM,
    CN_PARENTNOTIFY = CN_BASE + WM_PARENTNOTIFY,
    CN_VKEYTOITEM = CN_BASE + WM_VKEYTOITEM,
    CN_VSCROLL = CN_BASE + WM_VSCROLL,
    CN_KEYDOWN = CN_BASE + WM_KEYDOWN,
    CN_KEYUP = CN_BASE + WM_KEYUP,
    CN_CHAR = CN_BASE + WM_CHAR,
    CN_SYSKEYDOWN = CN_BASE + WM_SYSKEYDOWN,
    CN_SYSCHAR = CN_BASE + WM_SYSCHAR,
    CN_NOTIFY = CN_BASE + WM_NOTIFY
};
