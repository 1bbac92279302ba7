// The menu bar and the system menu of a window.
#include "platform/portable/MenuBar.h"
#include "platform/portable/winbase.h"

void AttachMenu(TWindow& Window, HMENU Menu)
{
    if (IsMenu(Menu))
        Window.Menu = Menu;
}

HMENU GetMenu(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window && !Window->IsChild() ? Window->Menu : nullptr;
}

BOOL SetMenu(HWND Handle, HMENU Menu)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window || Window->IsChild() || (Menu && !IsMenu(Menu)))
        return FALSE;
    Window->Menu = Menu;
    SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER | SWP_FRAMECHANGED);
    return TRUE;
}

BOOL DrawMenuBar(HWND Handle)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    if (!Window->IsChild() && Window->Menu)
        SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                     SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER | SWP_FRAMECHANGED);
    return TRUE;
}

namespace {

struct TSystemItem {
    UINT Id;
    const char* Text; // null: a separator
    HBITMAP Bitmap;
};

HMENU MakeSystemMenu(bool Document)
{
    const TSystemItem Items[] = {
        {SC_RESTORE, "&Restore", HBMMENU_POPUP_RESTORE},
        {SC_MOVE, "&Move", nullptr},
        {SC_SIZE, "&Size", nullptr},
        {SC_MINIMIZE, "Mi&nimize", HBMMENU_POPUP_MINIMIZE},
        {SC_MAXIMIZE, "Ma&ximize", HBMMENU_POPUP_MAXIMIZE},
        {0, nullptr, nullptr},
        {SC_CLOSE, Document ? "&Close\tCtrl+F4" : "&Close\tAlt+F4", HBMMENU_POPUP_CLOSE},
    };
    const HMENU Menu = CreatePopupMenu();
    for (const TSystemItem& Item : Items) {
        AppendMenuA(Menu, Item.Text ? MF_STRING : MF_SEPARATOR, Item.Id, Item.Text);
        if (Item.Bitmap)
            FindItem(Menu, Item.Id, MF_BYCOMMAND).Item().Bitmap = Item.Bitmap;
    }
    if (Document) {
        AppendMenuA(Menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(Menu, MF_STRING, SC_NEXTWINDOW, "Nex&t\tCtrl+F6");
    }
    SetMenuDefaultItem(Menu, SC_CLOSE, FALSE);
    MenuOf(Menu)->System = true;
    return Menu;
}

} // namespace

HMENU GetSystemMenu(HWND Handle, BOOL Revert)
{
    TStateLock Lock;
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return nullptr;
    if (Revert && Window->SystemMenu) {
        DestroyMenu(Window->SystemMenu);
        Window->SystemMenu = nullptr;
    }
    if (!IsMenu(Window->SystemMenu))
        Window->SystemMenu =
            Window->Has(WS_SYSMENU) ? MakeSystemMenu((Window->ExStyle & WS_EX_MDICHILD) != 0) : nullptr;
    return Revert ? nullptr : Window->SystemMenu;
}

namespace {

// Without a display every item of a bar is as wide as its characters are many.
constexpr int CharacterWidth = 7;

RECT ItemRect(const TMenuData& Menu, std::size_t Position, POINT Origin)
{
    const int Height = GetSystemMetrics(SM_CYMENU) - 1;
    if (Menu.Popup) {
        const int Top = Origin.y + static_cast<int>(Position) * Height;
        return {Origin.x, Top, Origin.x + 120, Top + Height};
    }
    int Left = Origin.x;
    for (std::size_t Index = 0; Index < Position; ++Index)
        Left += static_cast<int>(Menu.Items[Index].Text.size() + 2) * CharacterWidth;
    return {Left, Origin.y, Left + static_cast<int>(Menu.Items[Position].Text.size() + 2) * CharacterWidth,
            Origin.y + Height};
}

POINT BarOrigin(HWND Handle)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return {0, 0};
    const RECT Client = ScreenClientRect(*Window);
    return {Client.left, Client.top - MenuBarHeight(*Window)};
}

} // namespace

BOOL GetMenuItemRect(HWND Window, HMENU Menu, UINT Item, LPRECT Rect)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, MF_BYPOSITION);
    if (!Place || !Rect)
        return FALSE;
    *Rect = ItemRect(*Place.Menu, Place.Position, BarOrigin(Window));
    return TRUE;
}

int MenuItemFromPoint(HWND Window, HMENU Handle, POINT Point)
{
    TStateLock Lock;
    const TMenuData* const Menu = MenuOf(Handle);
    for (std::size_t Position = 0; Menu && Position < Menu->Items.size(); ++Position) {
        const RECT Rect = ItemRect(*Menu, Position, BarOrigin(Window));
        if (PtInRect(&Rect, Point))
            return static_cast<int>(Position);
    }
    return -1;
}
