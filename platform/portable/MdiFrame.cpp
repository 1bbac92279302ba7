// The frame around a client of documents: its window list and its keys.
#include <string>

#include "platform/portable/MdiState.h"
#include "platform/portable/MenuBar.h"

namespace {

constexpr UINT MaximumListed = 9;

bool IsListed(const TMdiClient& State, const TMenuEntry& Item)
{
    return Item.Id >= State.FirstId && Item.Id <= State.FirstId + MaximumListed && !Item.SubMenu;
}

std::string TitleOf(HWND Window)
{
    std::string Text(static_cast<std::size_t>(GetWindowTextLengthA(Window)) + 1, 0);
    Text.resize(static_cast<std::size_t>(GetWindowTextA(Window, Text.data(), static_cast<int>(Text.size()))));
    return Text;
}

// The document of a command of the window list.
HWND DocumentOf(HWND Client, UINT Command)
{
    const TMdiClient* const State = MdiClientOf(Client);
    const std::vector<HWND> Documents = DocumentsOf(Client);
    if (!State || Command < State->FirstId || Command - State->FirstId >= Documents.size())
        return nullptr;
    return Documents[Command - State->FirstId];
}

} // namespace

void ClearWindowList(HWND Client)
{
    TStateLock Lock;
    const TMdiClient* const State = MdiClientOf(Client);
    TMenuData* const Menu = State && State->WindowMenu ? MenuOf(State->WindowMenu) : nullptr;
    if (!Menu || !State->FirstId)
        return;
    const std::size_t Before = Menu->Items.size();
    std::erase_if(Menu->Items,
                  [&](const TMenuEntry& Item) { return !Item.IsSeparator() && IsListed(*State, Item); });
    if (Menu->Items.size() < Before && !Menu->Items.empty() && Menu->Items.back().IsSeparator())
        Menu->Items.pop_back();
}

void RefreshWindowList(HWND Client)
{
    ClearWindowList(Client);
    const TMdiClient* State = MdiClientOf(Client);
    if (!State || !State->WindowMenu || !State->FirstId)
        return;
    const HMENU Menu = State->WindowMenu;
    const UINT FirstId = State->FirstId;
    const HWND Active = ActiveDocument(Client);
    UINT Number = 0;
    for (const HWND Document : DocumentsOf(Client)) {
        if (!(GetWindowLongA(Document, GWL_STYLE) & WS_VISIBLE))
            continue;
        if (Number == 0)
            AppendMenuA(Menu, MF_SEPARATOR, 0, nullptr);
        if (Number >= MaximumListed) {
            AppendMenuA(Menu, MF_STRING, FirstId + MaximumListed, "&More Windows...");
            break;
        }
        const std::string Line = "&" + std::to_string(Number + 1) + " " + TitleOf(Document);
        AppendMenuA(Menu, MF_STRING | (Document == Active ? MF_CHECKED : 0u), FirstId + Number, Line.c_str());
        ++Number;
    }
}

void ShowDocumentInTitle(HWND Client)
{
    TMdiClient* const State = MdiClientOf(Client);
    const HWND Frame = GetParent(Client);
    if (!State || State->ChangesTitle)
        return;
    const HWND Active = ActiveDocument(Client);
    const bool Share = Active && IsZoomed(Active);
    if (!Share && !State->TitleIsShared)
        return;
    if (!State->TitleIsShared)
        State->FrameTitle = TitleOf(Frame);
    State->TitleIsShared = Share;
    const std::string Title = Share ? State->FrameTitle + " - [" + TitleOf(Active) + "]" : State->FrameTitle;
    State->ChangesTitle = true;
    DefWindowProcA(Frame, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Title.c_str()));
    if (TMdiClient* const Kept = MdiClientOf(Client))
        Kept->ChangesTitle = false;
}

namespace {

// A new title of the frame, which keeps naming the maximized document.
void SetFrameTitle(HWND Frame, HWND Client, LPARAM Text)
{
    DefWindowProcA(Frame, WM_SETTEXT, 0, Text);
    if (TMdiClient* const State = MdiClientOf(Client)) {
        State->TitleIsShared = false;
        ShowDocumentInTitle(Client);
    }
}

} // namespace

LRESULT DefFrameProcA(HWND Frame, HWND Client, UINT Message, WPARAM WParam, LPARAM LParam)
{
    if (!Client)
        return DefWindowProcA(Frame, Message, WParam, LParam);
    switch (Message) {
    case WM_COMMAND: {
        const TMdiClient* const State = MdiClientOf(Client);
        const UINT Id = LOWORD(WParam);
        if (!State || Id < State->FirstId || Id >= 0xf000 || !State->FirstId)
            break;
        if (const HWND Document = DocumentOf(Client, Id))
            SendMessageA(Client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Document), 0);
        return 0;
    }
    case WM_NCACTIVATE:
        SendMessageA(Client, Message, WParam, LParam);
        break;
    case WM_SETTEXT:
        SetFrameTitle(Frame, Client, LParam);
        return 1;
    case WM_SETFOCUS:
        SetFocus(Client);
        return 0;
    case WM_SIZE:
        MoveWindow(Client, 0, 0, LOWORD(LParam), HIWORD(LParam), TRUE);
        break;
    default:
        break;
    }
    return DefWindowProcA(Frame, Message, WParam, LParam);
}

BOOL TranslateMDISysAccel(HWND Client, LPMSG Message)
{
    if (Message->message != WM_KEYDOWN && Message->message != WM_SYSKEYDOWN)
        return FALSE;
    const HWND Active = ActiveDocument(Client);
    if (!Active || GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_MENU) < 0)
        return FALSE;
    WPARAM Command = 0;
    if (Message->wParam == VK_F6 || Message->wParam == VK_TAB)
        Command = GetKeyState(VK_SHIFT) < 0 ? SC_PREVWINDOW : SC_NEXTWINDOW;
    else if (Message->wParam == VK_F4 || Message->wParam == VK_RBUTTON)
        Command = SC_CLOSE;
    if (!Command)
        return FALSE;
    SendMessageA(Active, WM_SYSCOMMAND, Command, static_cast<LPARAM>(Message->wParam));
    return TRUE;
}

HWND CreateMDIWindowA(LPCSTR ClassName, LPCSTR Text, DWORD Style, int X, int Y, int Width, int Height,
                      HWND Client, HINSTANCE Instance, LPARAM LParam)
{
    return CreateWindowExA(WS_EX_MDICHILD, ClassName, Text, Style, X, Y, Width, Height, Client, nullptr,
                           Instance, reinterpret_cast<LPVOID>(LParam));
}
