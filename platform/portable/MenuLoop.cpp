// Menus while they are open. Keys choose: arrows move, Return and mnemonics
// take an item, Escape closes a level. They may come from the keyboard or be
// posted to the owner.
#include "platform/portable/MenuBar.h"
#include "platform/portable/Thread.h"

char MnemonicOf(const std::string& Text)
{
    char Result = 0;
    for (std::size_t Index = 0; Index + 1 < Text.size(); ++Index)
        if (Text[Index] == '&') {
            ++Index;
            if (Text[Index] != '&' && !Result)
                Result = Text[Index];
        }
    return Result >= 'A' && Result <= 'Z' ? static_cast<char>(Result + 32) : Result;
}

namespace {

constexpr int Nothing = -1;

class TMenuLoop {
public:
    TMenuLoop(HWND Owner, UINT Flags) : FOwner(Owner), FFlags(Flags) {}

    void Begin(HMENU Menu, bool Popup);
    void Run();
    void End(bool Popup);
    void Press(WPARAM Key);
    void Type(char Character);
    UINT Chosen() const { return FChosen; }
    HMENU ChosenMenu() const { return FChosenMenu; }
    int ChosenPosition() const { return FChosenPosition; }

private:
    struct TLevel {
        HMENU Menu;
        int Selected;
    };

    TLevel& Top() { return FLevels.back(); }
    bool Notify() const { return (FFlags & TPM_NONOTIFY) == 0; }
    void Open(HMENU Menu, int Position);
    void CloseTop();
    void Select(int Position);
    void Step(int By);
    void Execute();
    void Announce(UINT Flags, UINT Number, HMENU Menu);

    HWND FOwner;
    UINT FFlags;
    std::vector<TLevel> FLevels;
    UINT FChosen = 0;
    HMENU FChosenMenu = nullptr;
    int FChosenPosition = Nothing;
    bool FDone = false;
};

void TMenuLoop::Begin(HMENU Menu, bool Popup)
{
    TThread& Thread = *CurrentThread();
    Thread.MenuOwner = FOwner;
    Thread.EndMenu = false;
    if (Notify())
        SendMessageA(FOwner, WM_ENTERMENULOOP, Popup, 0);
    SendMessageA(FOwner, WM_SETCURSOR, reinterpret_cast<WPARAM>(FOwner), HTCAPTION);
    if (Notify())
        SendMessageA(FOwner, WM_INITMENU, reinterpret_cast<WPARAM>(Menu), 0);
    if (Popup) {
        Open(Menu, 0);
    } else {
        FLevels.push_back({Menu, Nothing});
    }
}

void TMenuLoop::End(bool Popup)
{
    while (!FLevels.empty())
        CloseTop();
    CurrentThread()->MenuOwner = nullptr;
    Announce(0xffff, 0, nullptr);
    if (Notify())
        SendMessageA(FOwner, WM_EXITMENULOOP, Popup, 0);
}

void TMenuLoop::Announce(UINT Flags, UINT Number, HMENU Menu)
{
    SendMessageA(FOwner, WM_MENUSELECT, MAKEWPARAM(Number, Flags), reinterpret_cast<LPARAM>(Menu));
}

void TMenuLoop::Open(HMENU Menu, int Position)
{
    if (Notify()) {
        const TMenuData* const Record = MenuOf(Menu);
        SendMessageA(FOwner, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(Menu),
                     MAKELPARAM(Position, Record && Record->System));
    }
    if (IsMenu(Menu))
        FLevels.push_back({Menu, Nothing});
}

void TMenuLoop::CloseTop()
{
    const HMENU Menu = Top().Menu;
    FLevels.pop_back();
    const TMenuData* const Record = MenuOf(Menu);
    if (Notify() && Record && Record->Popup)
        SendMessageA(FOwner, WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(Menu), 0);
}

void TMenuLoop::Select(int Position)
{
    Top().Selected = Position;
    const HMENU Menu = Top().Menu;
    const TItemPlace Place = FindItem(Menu, static_cast<UINT>(Position), MF_BYPOSITION);
    if (!Place)
        return;
    const TMenuEntry& Item = Place.Item();
    const UINT Number = Item.SubMenu ? static_cast<UINT>(Position) : Item.Id;
    UINT Flags = Item.Type | Item.State | MF_HILITE | (Item.SubMenu ? MF_POPUP : 0u);
    if (Place.Menu->System)
        Flags |= MF_SYSMENU;
    Announce(Flags & 0xffff, Number, Menu);
}

void TMenuLoop::Step(int By)
{
    const TMenuData* const Menu = MenuOf(Top().Menu);
    const int Count = Menu ? static_cast<int>(Menu->Items.size()) : 0;
    int Position = Top().Selected;
    if (Position == Nothing && By < 0)
        Position = 0;
    for (int Tries = 0; Tries < Count; ++Tries) {
        Position = (Position + By + Count) % Count;
        if (!Menu->Items[static_cast<std::size_t>(Position)].IsSeparator()) {
            Select(Position);
            return;
        }
    }
}

void TMenuLoop::Execute()
{
    const int Position = Top().Selected;
    const TItemPlace Place = FindItem(Top().Menu, static_cast<UINT>(Position), MF_BYPOSITION);
    if (Position == Nothing || !Place || !Place.Item().IsEnabled() || Place.Item().IsSeparator())
        return;
    if (const HMENU SubMenu = Place.Item().SubMenu) {
        Open(SubMenu, Position);
        Step(1);
        return;
    }
    FChosen = Place.Item().Id;
    FChosenMenu = Top().Menu;
    FChosenPosition = Position;
    FDone = true;
}

void TMenuLoop::Type(char Character)
{
    const std::string Typed{'&', Character};
    const char Wanted = MnemonicOf(Typed);
    const TMenuData* const Menu = MenuOf(Top().Menu);
    for (std::size_t Position = 0; Menu && Position < Menu->Items.size(); ++Position)
        if (MnemonicOf(Menu->Items[Position].Text) == Wanted) {
            Select(static_cast<int>(Position));
            Execute();
            return;
        }
    const LRESULT Answer =
        SendMessageA(FOwner, WM_MENUCHAR, MAKEWPARAM(Character, Menu && Menu->Popup ? MF_POPUP : 0),
                     reinterpret_cast<LPARAM>(Top().Menu));
    if (HIWORD(Answer) == MNC_CLOSE)
        FDone = true;
    if (HIWORD(Answer) == MNC_EXECUTE || HIWORD(Answer) == MNC_SELECT)
        Select(LOWORD(Answer));
    if (HIWORD(Answer) == MNC_EXECUTE)
        Execute();
}

void TMenuLoop::Press(WPARAM Key)
{
    const TMenuData* const Menu = MenuOf(Top().Menu);
    const bool Bar = Menu && !Menu->Popup;
    switch (Key) {
    case VK_DOWN:
        Bar ? Execute() : Step(1);
        break;
    case VK_UP:
        Bar ? Execute() : Step(-1);
        break;
    case VK_RIGHT: {
        const TItemPlace Place = FindItem(Top().Menu, static_cast<UINT>(Top().Selected), MF_BYPOSITION);
        if (Bar)
            Step(1);
        else if (Place && Place.Item().SubMenu)
            Execute();
        break;
    }
    case VK_LEFT:
        if (Bar)
            Step(-1);
        else if (FLevels.size() > 1)
            CloseTop();
        break;
    case VK_RETURN:
        Execute();
        break;
    case VK_ESCAPE:
        if (FLevels.size() > 1)
            CloseTop();
        else
            FDone = true;
        break;
    case VK_MENU:
    case VK_F10:
        FDone = true;
        break;
    default:
        break;
    }
}

void TMenuLoop::Run()
{
    TThread& Thread = *CurrentThread();
    MSG Message;
    while (!FDone && !Thread.EndMenu && IsWindow(FOwner) && !FLevels.empty()) {
        if (!PeekMessageA(&Message, nullptr, 0, 0, PM_NOREMOVE)) {
            SendMessageA(FOwner, WM_ENTERIDLE, MSGF_MENU, 0);
            if (!Thread.EndMenu)
                WaitMessage();
            continue;
        }
        if (Message.message == WM_QUIT)
            return;
        PeekMessageA(&Message, nullptr, Message.message, Message.message, PM_REMOVE);
        if (CallMsgFilterA(&Message, MSGF_MENU))
            continue;
        if (Message.message == WM_KEYDOWN || Message.message == WM_SYSKEYDOWN) {
            TranslateMessage(&Message);
            Press(Message.wParam);
        } else if (Message.message == WM_CHAR || Message.message == WM_SYSCHAR) {
            if (Message.wParam > VK_SPACE)
                Type(static_cast<char>(Message.wParam));
        } else {
            DispatchMessageA(&Message);
        }
    }
}

void SendChosen(HWND Owner, const TMenuLoop& Loop)
{
    const TMenuData* const Menu = Loop.Chosen() ? MenuOf(Loop.ChosenMenu()) : nullptr;
    if (!Menu)
        return;
    if (Menu->System)
        PostMessageA(Owner, WM_SYSCOMMAND, Loop.Chosen(), 0);
    else if (Menu->Info.dwStyle & MNS_NOTIFYBYPOS)
        PostMessageA(Owner, WM_MENUCOMMAND, static_cast<WPARAM>(Loop.ChosenPosition()),
                     reinterpret_cast<LPARAM>(Loop.ChosenMenu()));
    else
        PostMessageA(Owner, WM_COMMAND, LOWORD(Loop.Chosen()), 0);
}

} // namespace

BOOL TrackPopupMenuEx(HMENU Menu, UINT Flags, int, int, HWND Owner, TPMPARAMS*)
{
    if (!IsMenu(Menu) || !IsWindow(Owner))
        return FALSE;
    if (CurrentThread()->MenuOwner) {
        SetLastError(ERROR_POPUP_ALREADY_ACTIVE);
        return FALSE;
    }
    TMenuLoop Loop(Owner, Flags);
    Loop.Begin(Menu, true);
    Loop.Run();
    Loop.End(true);
    if (Flags & TPM_RETURNCMD)
        return static_cast<BOOL>(Loop.Chosen());
    SendChosen(Owner, Loop);
    return TRUE;
}

BOOL TrackPopupMenu(HMENU Menu, UINT Flags, int X, int Y, int, HWND Owner, const RECT*)
{
    return TrackPopupMenuEx(Menu, Flags, X, Y, Owner, nullptr);
}

BOOL EndMenu()
{
    TThread& Thread = *CurrentThread();
    if (!Thread.MenuOwner)
        return FALSE;
    Thread.EndMenu = true;
    return TRUE;
}

void TrackMenuBarByKey(HWND Window, char Mnemonic)
{
    const HMENU Menu = Mnemonic == VK_SPACE ? GetSystemMenu(Window, FALSE) : GetMenu(Window);
    if (!IsMenu(Menu) || GetMenuItemCount(Menu) <= 0 || CurrentThread()->MenuOwner)
        return;
    const bool System = Mnemonic == VK_SPACE;
    TMenuLoop Loop(Window, 0);
    Loop.Begin(Menu, System);
    if (Mnemonic && !System)
        Loop.Type(Mnemonic);
    else
        Loop.Press(System ? VK_DOWN : VK_RIGHT);
    Loop.Run();
    Loop.End(System);
    SendChosen(Window, Loop);
}
