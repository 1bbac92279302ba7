// What the standard dialogs are made of and which messages they send, and the text
// form in which data/dialogs.txt keeps that of Windows, as Wine 8.0 gives it:
//   [find]
//   dialog #32770 94C808C4 00010101 0 0 236 62 "Find"
//   font -11 0 "MS Shell Dlg"
//   child 1093 Static 50020000 00000004 4 8 42 8 "Fi&nd what:"
//   message hook WM_INITDIALOG owner
// A window: class, style, extended style, place and size in dialog units, text. A
// message: who receives it, its name, for WM_KILLFOCUS the window that gets the focus,
// for WM_COMMAND identifier and code, and which of the windows is active.
#pragma once

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/winapi.h"

struct TDialogCase {
    const char* Name;
    // Opens the dialog for Owner, with Hook as its hook procedure; the window of a
    // dialog without mode, null for the others.
    HWND (*Open)(HWND Owner, LPOFNHOOKPROC Hook);
};

struct TDialogListing {
    std::vector<std::string> Windows;
    std::vector<std::string> Messages;
};

namespace DialogListing {

struct TRecorder {
    HWND Owner = nullptr, Dialog = nullptr;
    WNDPROC DialogProc = nullptr;
    bool Explorer = false; // the hook procedure belongs to a child of the dialog
    bool Closed = false;
    TDialogListing Listing;
};
inline TRecorder* Current = nullptr;

inline const char* NameOf(UINT Message, LPARAM LParam)
{
    static const struct {
        UINT Message;
        const char* Name;
    } Names[] = {{WM_INITDIALOG, "WM_INITDIALOG"},
                 {WM_WINDOWPOSCHANGING, "WM_WINDOWPOSCHANGING"},
                 {WM_WINDOWPOSCHANGED, "WM_WINDOWPOSCHANGED"},
                 {WM_SHOWWINDOW, "WM_SHOWWINDOW"},
                 {WM_ACTIVATE, "WM_ACTIVATE"},
                 {WM_NCACTIVATE, "WM_NCACTIVATE"},
                 {WM_SETFOCUS, "WM_SETFOCUS"},
                 {WM_KILLFOCUS, "WM_KILLFOCUS"},
                 {WM_CTLCOLORDLG, "WM_CTLCOLORDLG"},
                 {WM_ENTERIDLE, "WM_ENTERIDLE"},
                 {WM_ENABLE, "WM_ENABLE"},
                 {WM_COMMAND, "WM_COMMAND"},
                 {WM_CLOSE, "WM_CLOSE"},
                 {WM_DESTROY, "WM_DESTROY"},
                 {WM_NCDESTROY, "WM_NCDESTROY"},
                 {RegisterWindowMessageA(FINDMSGSTRINGA), "FINDMSGSTRING"}};
    static const char* const Notifications[] = {"CDN_INITDONE",       "CDN_SELCHANGE",  "CDN_FOLDERCHANGE",
                                                "CDN_SHAREVIOLATION", "CDN_HELP",       "CDN_FILEOK",
                                                "CDN_TYPECHANGE",     "CDN_INCLUDEITEM"};
    if (Message == WM_NOTIFY) {
        const UINT Code = reinterpret_cast<const NMHDR*>(LParam)->code;
        return Code <= CDN_INITDONE && Code >= CDN_INCLUDEITEM ? Notifications[CDN_INITDONE - Code] : nullptr;
    }
    for (const auto& Each : Names)
        if (Each.Message == Message)
            return Each.Name;
    return nullptr;
}

inline void Record(const char* Receiver, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const char* const Name = Current ? NameOf(Message, LParam) : nullptr;
    if (!Name)
        return;
    const auto Which = [](HWND Window) {
        return !Window                     ? " none"
               : Window == Current->Dialog ? " dialog"
               : Window == Current->Owner  ? " owner"
                                           : " other";
    };
    std::string Line = std::string(Receiver) + " " + Name;
    if (Message == WM_KILLFOCUS)
        Line += Which(reinterpret_cast<HWND>(WParam));
    if (Message == WM_COMMAND)
        Line += " " + std::to_string(LOWORD(WParam)) + "/" + std::to_string(HIWORD(WParam));
    Line += Which(GetActiveWindow());
    Current->Listing.Messages.push_back(Line);
}

inline LRESULT CALLBACK DialogProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const WNDPROC Old = Current->DialogProc;
    Record("dialog", Message, WParam, LParam);
    return CallWindowProcA(Old, Window, Message, WParam, LParam);
}

inline UINT_PTR CALLBACK Hook(HWND, UINT Message, WPARAM WParam, LPARAM LParam)
{
    Record("hook", Message, WParam, LParam);
    return Message == WM_INITDIALOG; // otherwise dialogs without mode stay hidden
}

// Notes the dialog window when it is made, to see all of its messages.
inline LRESULT CALLBACK CreationHook(int Code, WPARAM WParam, LPARAM LParam)
{
    if (Code == HCBT_CREATEWND && Current && !Current->Dialog) {
        const auto& Data = *reinterpret_cast<const CBT_CREATEWNDA*>(LParam)->lpcs;
        const auto Window = reinterpret_cast<HWND>(WParam);
        char ClassName[32] = "";
        GetClassNameA(Window, ClassName, sizeof ClassName);
        if (Data.hwndParent == Current->Owner && std::strcmp(ClassName, "#32770") == 0) {
            Current->Dialog = Window;
            Current->DialogProc = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(Window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DialogProc)));
        }
    }
    return CallNextHookEx(nullptr, Code, WParam, LParam);
}

// The rectangle in dialog units: what a template says, whatever the font.
inline std::string Units(HWND Dialog, const RECT& Rect)
{
    RECT Base{0, 0, 4000, 8000};
    MapDialogRect(Dialog, &Base);
    const auto X = [&](int Pixels) { return std::to_string(MulDiv(Pixels, 4000, Base.right)); };
    const auto Y = [&](int Pixels) { return std::to_string(MulDiv(Pixels, 8000, Base.bottom)); };
    return X(Rect.left) + " " + Y(Rect.top) + " " + X(Rect.right - Rect.left) + " " +
           Y(Rect.bottom - Rect.top);
}

inline std::string Describe(HWND Dialog, HWND Window, const RECT& Rect)
{
    char ClassName[64] = "", Styles[32], Text[300] = "";
    GetClassNameA(Window, ClassName, sizeof ClassName);
    std::snprintf(Styles, sizeof Styles, " %08X %08X ",
                  static_cast<unsigned>(GetWindowLongA(Window, GWL_STYLE)),
                  static_cast<unsigned>(GetWindowLongA(Window, GWL_EXSTYLE)));
    SendMessageA(Window, WM_GETTEXT, sizeof Text, reinterpret_cast<LPARAM>(Text));
    std::string Quoted;
    for (const char* Each = Text; *Each; ++Each)
        Quoted += *Each == '\n' ? "\\n" : *Each == '\r' ? "\\r" : std::string(1, *Each);
    return std::string(ClassName) + Styles + Units(Dialog, Rect) + " \"" + Quoted + "\"";
}

inline std::vector<std::string> ListWindows(HWND Dialog)
{
    RECT Client;
    GetClientRect(Dialog, &Client);
    std::vector<std::string> Lines{"dialog " + Describe(Dialog, Dialog, Client)};
    LOGFONTA Font{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(Dialog, WM_GETFONT, 0, 0)), sizeof Font, &Font);
    Lines.push_back("font " + std::to_string(Font.lfHeight) + " " + std::to_string(Font.lfCharSet) + " \"" +
                    Font.lfFaceName + "\"");
    for (HWND Child = GetWindow(Dialog, GW_CHILD); Child; Child = GetWindow(Child, GW_HWNDNEXT)) {
        RECT Rect;
        GetWindowRect(Child, &Rect);
        MapWindowPoints(nullptr, Dialog, reinterpret_cast<POINT*>(&Rect), 2);
        Lines.push_back("child " + std::to_string(static_cast<short>(GetDlgCtrlID(Child))) + " " +
                        Describe(Dialog, Child, Rect));
    }
    return Lines;
}

inline void ListAndClose()
{
    if (Current && Current->Dialog && !Current->Closed) {
        Current->Closed = true;
        Current->Listing.Windows = ListWindows(Current->Dialog);
        PostMessageA(Current->Dialog, WM_CLOSE, 0, 0);
    }
}

inline LRESULT CALLBACK OwnerProc(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    Record("owner", Message, WParam, LParam);
    if (Message == WM_ENTERIDLE || Message == WM_TIMER)
        ListAndClose();
    return DefWindowProcA(Window, Message, WParam, LParam);
}

inline HWND MakeOwner()
{
    WNDCLASSA Class{};
    Class.lpfnWndProc = OwnerProc;
    Class.lpszClassName = "TDialogListingOwner";
    Class.hInstance = GetModuleHandleA(nullptr);
    Class.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<LONG_PTR>(COLOR_BTNFACE + 1));
    RegisterClassA(&Class);
    const HWND Owner = CreateWindowExA(0, Class.lpszClassName, "Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40,
                                       30, 500, 300, nullptr, nullptr, Class.hInstance, nullptr);
    UpdateWindow(Owner);
    return Owner;
}

// Handles what is in the queue; the dialog first, as an application's loop does.
inline void HandleMessages(HWND Dialog)
{
    for (MSG Message; PeekMessageA(&Message, nullptr, 0, 0, PM_REMOVE);)
        if (!Dialog || !IsDialogMessageA(Dialog, &Message)) {
            TranslateMessage(&Message);
            DispatchMessageA(&Message);
        }
}

} // namespace DialogListing

// Opens the dialog, lists it as soon as it waits for its user, and closes it.
inline TDialogListing ListDialog(const TDialogCase& Case)
{
    using namespace DialogListing;
    TRecorder Recorder;
    Recorder.Owner = MakeOwner();
    HandleMessages(nullptr);
    Current = &Recorder;
    const HHOOK Creation = SetWindowsHookExA(WH_CBT, CreationHook, nullptr, GetCurrentThreadId());
    SetTimer(Recorder.Owner, 1, 20000, nullptr); // in case that WM_ENTERIDLE never comes
    if (const HWND Dialog = Case.Open(Recorder.Owner, Hook)) {
        HandleMessages(Dialog);
        ListAndClose();
        HandleMessages(Dialog);
    }
    UnhookWindowsHookEx(Creation);
    HandleMessages(nullptr);
    Current = nullptr;
    DestroyWindow(Recorder.Owner);
    return Recorder.Listing;
}

inline HWND OpenFile(HWND Owner, LPOFNHOOKPROC Hook, BOOL (*Function)(OPENFILENAMEA*))
{
    char File[MAX_PATH] = "";
    const auto Folder = std::filesystem::temp_directory_path() / "listing";
    std::filesystem::create_directory(Folder);
    const std::string FolderName = Folder.string();
    OPENFILENAMEA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.lpstrFilter = "Texts (*.txt)\0*.txt\0All files (*.*)\0*.*\0";
    Data.nFilterIndex = 1;
    Data.lpstrFile = File;
    Data.nMaxFile = sizeof File;
    Data.lpstrInitialDir = FolderName.c_str();
    Data.Flags = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    Data.lpfnHook = Hook;
    Function(&Data);
    std::error_code Ignored; // who put a file there may keep it
    std::filesystem::remove(Folder, Ignored);
    return nullptr;
}

inline HWND OpenColor(HWND Owner, LPCCHOOKPROC Hook, DWORD Flags)
{
    COLORREF Custom[16] = {};
    CHOOSECOLORA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.rgbResult = RGB(255, 128, 0);
    Data.lpCustColors = Custom;
    Data.Flags = Flags | CC_ENABLEHOOK | CC_RGBINIT;
    Data.lpfnHook = Hook;
    ChooseColorA(&Data);
    return nullptr;
}

inline HWND OpenFont(HWND Owner, LPCFHOOKPROC Hook)
{
    LOGFONTA Font{};
    Font.lfHeight = -16;
    Font.lfWeight = FW_NORMAL;
    std::strcpy(Font.lfFaceName, "DejaVu Sans");
    CHOOSEFONTA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.lpLogFont = &Font;
    Data.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_ENABLEHOOK;
    Data.lpfnHook = Hook;
    ChooseFontA(&Data);
    return nullptr;
}

inline HWND OpenFind(HWND Owner, LPFRHOOKPROC Hook, HWND (*Function)(FINDREPLACEA*))
{
    static FINDREPLACEA Data;
    static char What[80], With[80];
    std::strcpy(What, "old");
    std::strcpy(With, "new");
    Data = {};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.Flags = FR_DOWN | FR_ENABLEHOOK;
    Data.lpstrFindWhat = What;
    Data.lpstrReplaceWith = With;
    Data.wFindWhatLen = Data.wReplaceWithLen = sizeof What;
    Data.lpfnHook = Hook;
    return Function(&Data);
}

inline HWND OpenPrint(HWND Owner, LPPRINTHOOKPROC Hook, DWORD Flags)
{
    PRINTDLGA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Owner;
    Data.Flags = Flags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK;
    Data.nFromPage = Data.nMinPage = 1;
    Data.nToPage = Data.nMaxPage = 9;
    Data.nCopies = 2;
    Data.lpfnPrintHook = Data.lpfnSetupHook = Hook;
    PrintDlgA(&Data);
    if (Data.hDevMode)
        GlobalFree(Data.hDevMode);
    if (Data.hDevNames)
        GlobalFree(Data.hDevNames);
    return nullptr;
}

// Without a printer the system shows a message box in place of the print dialogs.
inline bool HasPrinter()
{
    PRINTDLGA Data{};
    Data.lStructSize = sizeof Data;
    Data.Flags = PD_RETURNDEFAULT;
    if (!PrintDlgA(&Data))
        return false;
    GlobalFree(Data.hDevMode);
    GlobalFree(Data.hDevNames);
    return true;
}

inline const std::vector<TDialogCase>& DialogCases()
{
    static const std::vector<TDialogCase> Cases = {
        {"open", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenFile(Owner, Hook, GetOpenFileNameA); }},
        {"save", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenFile(Owner, Hook, GetSaveFileNameA); }},
        {"font", OpenFont},
        {"color", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenColor(Owner, Hook, 0); }},
        {"color-full", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenColor(Owner, Hook, CC_FULLOPEN); }},
        {"find", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenFind(Owner, Hook, FindTextA); }},
        {"replace", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenFind(Owner, Hook, ReplaceTextA); }},
        {"print", [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenPrint(Owner, Hook, 0); }},
        {"print-setup",
         [](HWND Owner, LPOFNHOOKPROC Hook) { return OpenPrint(Owner, Hook, PD_PRINTSETUP); }}};
    return Cases;
}

inline std::string WriteListing(const TDialogCase& Case, const TDialogListing& Listing)
{
    std::string Text = "[" + std::string(Case.Name) + "]\n";
    for (const std::string& Line : Listing.Windows)
        Text += Line + "\n";
    for (const std::string& Line : Listing.Messages)
        Text += "message " + Line + "\n";
    return Text;
}
