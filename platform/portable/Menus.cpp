// Making, filling and asking menus.
#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/portable/Handles.h"
#include "platform/portable/Lifetime.h"
#include "platform/portable/MenuBar.h"
#include "platform/portable/winbase.h"

namespace {

constexpr UINT TypeFlags = MFT_BITMAP | MFT_OWNERDRAW | MFT_SEPARATOR | MFT_MENUBREAK | MFT_MENUBARBREAK |
                           MFT_RADIOCHECK | MFT_RIGHTORDER | MFT_RIGHTJUSTIFY;
constexpr UINT StateFlags = MFS_GRAYED | MFS_CHECKED | MFS_HILITE | MFS_DEFAULT;

using TMenuTable = THandleTable<TMenuData, THandleKind::Menu>;

TMenuTable& Table()
{
    static auto& Menus = *new TMenuTable;
    return Menus;
}

HMENU MakeMenu(bool Popup)
{
    TStateLock Lock;
    auto Menu = std::make_unique<TMenuData>();
    TMenuData* const Result = Menu.get();
    Result->Popup = Popup;
    const HMENU Handle = reinterpret_cast<HMENU>(Table().Add(std::move(Menu)));
    if (Handle) // else Add has destroyed the menu
        Result->Handle = Handle;
    return Handle;
}

} // namespace

TMenuData* MenuOf(HMENU Handle)
{
    TStateLock Lock;
    TMenuData* const Menu = Table().Find(Handle);
    if (!Menu)
        SetLastError(ERROR_INVALID_MENU_HANDLE);
    return Menu;
}

namespace {

TItemPlace FindCommand(TMenuData& Menu, UINT Id, int Depth)
{
    TItemPlace Fallback;
    constexpr int MaximumDepth = 25; // a menu may be put into itself
    for (std::size_t Position = 0; Position < Menu.Items.size(); ++Position) {
        const TMenuEntry& Item = Menu.Items[Position];
        TMenuData* const Sub = Item.SubMenu ? MenuOf(Item.SubMenu) : nullptr;
        if (Sub && Depth < MaximumDepth)
            if (const TItemPlace Inner = FindCommand(*Sub, Id, Depth + 1))
                return Inner;
        if (Item.Id == Id && !Sub)
            return {&Menu, Position};
        if (Item.Id == Id && !Fallback)
            Fallback = {&Menu, Position};
    }
    return Fallback;
}

} // namespace

TItemPlace FindItem(HMENU Handle, UINT Item, UINT Flags)
{
    TStateLock Lock;
    TMenuData* const Menu = MenuOf(Handle);
    if (!Menu)
        return {};
    TItemPlace Place;
    if (!(Flags & MF_BYPOSITION))
        Place = FindCommand(*Menu, Item, 0);
    else if (Item < Menu->Items.size())
        Place = {Menu, Item};
    if (!Place)
        SetLastError(ERROR_MENU_ITEM_NOT_FOUND);
    return Place;
}

HMENU CreateMenu()
{
    return MakeMenu(false);
}

HMENU CreatePopupMenu()
{
    return MakeMenu(true);
}

BOOL IsMenu(HMENU Handle)
{
    return MenuOf(Handle) != nullptr;
}

BOOL DestroyMenu(HMENU Handle)
{
    TStateLock Lock;
    const std::unique_ptr<TMenuData> Menu = Table().Take(Handle);
    if (!Menu) {
        SetLastError(ERROR_INVALID_MENU_HANDLE);
        return FALSE;
    }
    for (const TMenuEntry& Item : Menu->Items)
        if (Item.SubMenu)
            DestroyMenu(Item.SubMenu);
    return TRUE;
}

namespace {

// An item as the flags of AppendMenuA and its kin describe it.
TMenuEntry ItemFromFlags(UINT Flags, UINT_PTR Id, LPCSTR Text)
{
    TMenuEntry Item;
    Item.Type = Flags & TypeFlags & ~static_cast<UINT>(MFT_BITMAP | MFT_RADIOCHECK);
    Item.State = Flags & (MF_GRAYED | MF_DISABLED | MF_CHECKED);
    Item.Id = static_cast<UINT>(Id);
    if (Flags & MF_POPUP)
        Item.SubMenu = reinterpret_cast<HMENU>(Id);
    if (Item.IsSeparator())
        Item.State |= MF_GRAYED | MF_DISABLED;
    else if (Flags & MF_BITMAP)
        Item.Bitmap = reinterpret_cast<HBITMAP>(const_cast<LPSTR>(Text));
    else if (Flags & MF_OWNERDRAW)
        Item.Data = reinterpret_cast<ULONG_PTR>(Text);
    else if (Text) {
        Item.HasText = true;
        Item.Text = Text;
    }
    if (!Item.HasText && !Item.Bitmap && !(Item.Type & MFT_OWNERDRAW))
        Item.Type |= MFT_SEPARATOR;
    return Item;
}

void ApplyInfo(TMenuEntry& Item, const MENUITEMINFOA& Info)
{
    UINT Mask = Info.fMask;
    UINT Type = Info.fType;
    if (Mask & MIIM_TYPE) {
        Mask |= MIIM_FTYPE;
        if (Type & MFT_BITMAP) {
            Item.Bitmap = reinterpret_cast<HBITMAP>(Info.dwTypeData);
            Item.HasText = false;
        } else if (!(Type & (MFT_SEPARATOR | MFT_OWNERDRAW))) {
            Mask |= MIIM_STRING;
        }
    }
    if (Mask & MIIM_FTYPE)
        Item.Type = Type & TypeFlags & ~static_cast<UINT>(MFT_BITMAP);
    if (Mask & MIIM_STRING) {
        Item.HasText = Info.dwTypeData != nullptr;
        Item.Text = Info.dwTypeData ? Info.dwTypeData : "";
    }
    if (Mask & MIIM_STATE)
        Item.State = Info.fState & StateFlags;
    if (Mask & MIIM_ID)
        Item.Id = Info.wID;
    if (Mask & MIIM_SUBMENU)
        Item.SubMenu = Info.hSubMenu;
    if (Mask & MIIM_CHECKMARKS) {
        Item.Checked = Info.hbmpChecked;
        Item.Unchecked = Info.hbmpUnchecked;
    }
    if (Mask & MIIM_DATA)
        Item.Data = Info.dwItemData;
    if (Mask & MIIM_BITMAP)
        Item.Bitmap = Info.hbmpItem;
    if (!Item.HasText && !Item.Bitmap && !(Item.Type & MFT_OWNERDRAW))
        Item.Type |= MFT_SEPARATOR;
    if (Item.IsSeparator())
        Item.State |= MFS_GRAYED;
}

BOOL Insert(HMENU Handle, UINT Where, UINT Flags, const TMenuEntry& Item)
{
    TStateLock Lock;
    TMenuData* Menu = MenuOf(Handle);
    if (!Menu)
        return FALSE;
    std::size_t Position = Menu->Items.size();
    if (Flags & MF_BYPOSITION) {
        Position = std::min<std::size_t>(Where, Position);
    } else if (const TItemPlace Place = FindItem(Handle, Where, Flags)) {
        Menu = Place.Menu;
        Position = Place.Position;
    }
    Menu->Items.insert(Menu->Items.begin() + static_cast<std::ptrdiff_t>(Position), Item);
    return TRUE;
}

bool GoodSize(const MENUITEMINFOA* Info)
{
    if (Info && (Info->cbSize == sizeof(MENUITEMINFOA) || Info->cbSize == offsetof(MENUITEMINFOA, hbmpItem)))
        return true;
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

} // namespace

BOOL AppendMenuA(HMENU Menu, UINT Flags, UINT_PTR Id, LPCSTR Text)
{
    return Insert(Menu, ~0u, MF_BYPOSITION, ItemFromFlags(Flags, Id, Text));
}

BOOL InsertMenuA(HMENU Menu, UINT Item, UINT Flags, UINT_PTR Id, LPCSTR Text)
{
    return Insert(Menu, Item, Flags, ItemFromFlags(Flags, Id, Text));
}

BOOL ModifyMenuA(HMENU Menu, UINT Item, UINT Flags, UINT_PTR Id, LPCSTR Text)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return FALSE;
    TMenuEntry New = ItemFromFlags(Flags, Id, Text);
    const HMENU Old = Place.Item().SubMenu;
    New.Checked = Place.Item().Checked;
    New.Unchecked = Place.Item().Unchecked;
    if (!(Flags & MF_OWNERDRAW))
        New.Data = Place.Item().Data;
    Place.Item() = New;
    if (Old && Old != New.SubMenu)
        DestroyMenu(Old);
    return TRUE;
}

BOOL RemoveMenu(HMENU Menu, UINT Item, UINT Flags)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return FALSE;
    Place.Menu->Items.erase(Place.Menu->Items.begin() + static_cast<std::ptrdiff_t>(Place.Position));
    return TRUE;
}

BOOL DeleteMenu(HMENU Menu, UINT Item, UINT Flags)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return FALSE;
    if (Place.Item().SubMenu)
        DestroyMenu(Place.Item().SubMenu);
    return RemoveMenu(Menu, Item, Flags);
}

BOOL InsertMenuItemA(HMENU Menu, UINT Item, BOOL ByPosition, const MENUITEMINFOA* Info)
{
    if (!GoodSize(Info))
        return FALSE;
    TMenuEntry New;
    ApplyInfo(New, *Info);
    return Insert(Menu, Item, ByPosition ? MF_BYPOSITION : MF_BYCOMMAND, New);
}

BOOL SetMenuItemInfoA(HMENU Menu, UINT Item, BOOL ByPosition, const MENUITEMINFOA* Info)
{
    if (!GoodSize(Info))
        return FALSE;
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, ByPosition ? MF_BYPOSITION : MF_BYCOMMAND);
    if (!Place)
        return FALSE;
    ApplyInfo(Place.Item(), *Info);
    return TRUE;
}

namespace {

void GiveText(const TMenuEntry& Item, MENUITEMINFOA& Info)
{
    const auto Length = static_cast<UINT>(Item.Text.size());
    if (!Item.HasText) {
        if (Info.dwTypeData && Info.cch)
            Info.dwTypeData[0] = 0;
        Info.cch = 0;
    } else if (!Info.dwTypeData || !Info.cch) {
        Info.cch = Length;
    } else {
        Info.cch = static_cast<UINT>(CopyText(Item.Text, Info.dwTypeData, static_cast<int>(Info.cch)));
    }
}

} // namespace

BOOL GetMenuItemInfoA(HMENU Menu, UINT Position, BOOL ByPosition, MENUITEMINFOA* Info)
{
    if (!GoodSize(Info))
        return FALSE;
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Position, ByPosition ? MF_BYPOSITION : MF_BYCOMMAND);
    if (!Place)
        return FALSE;
    const TMenuEntry& Item = Place.Item();
    const UINT Mask = Info->fMask;
    if (Mask & (MIIM_TYPE | MIIM_FTYPE))
        Info->fType = Item.Type | (Mask & MIIM_TYPE && Item.Bitmap ? MFT_BITMAP : 0u);
    if (Mask & MIIM_STATE)
        Info->fState = Item.State;
    if (Mask & MIIM_ID)
        Info->wID = Item.Id;
    if (Mask & MIIM_SUBMENU)
        Info->hSubMenu = Item.SubMenu;
    if (Mask & MIIM_CHECKMARKS) {
        Info->hbmpChecked = Item.Checked;
        Info->hbmpUnchecked = Item.Unchecked;
    }
    if (Mask & MIIM_DATA)
        Info->dwItemData = Item.Data;
    if ((Mask & MIIM_BITMAP) && Info->cbSize == sizeof(MENUITEMINFOA))
        Info->hbmpItem = Item.Bitmap;
    if (Mask & (MIIM_STRING | MIIM_TYPE))
        GiveText(Item, *Info);
    return TRUE;
}

int GetMenuStringA(HMENU Menu, UINT Item, LPSTR Text, int Size, UINT Flags)
{
    TStateLock Lock;
    if (Text && Size > 0)
        Text[0] = 0;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place || !Place.Item().HasText)
        return 0;
    const std::string& Full = Place.Item().Text;
    return Text && Size > 0 ? CopyText(Full, Text, Size) : static_cast<int>(Full.size());
}

UINT GetMenuState(HMENU Menu, UINT Item, UINT Flags)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return ~0u;
    const UINT State = Place.Item().State | Place.Item().Type;
    if (!Place.Item().SubMenu)
        return State;
    const TMenuData* const Sub = MenuOf(Place.Item().SubMenu);
    return Sub ? static_cast<UINT>(Sub->Items.size()) << 8 | ((State | MF_POPUP) & 0xff) : ~0u;
}

int GetMenuItemCount(HMENU Handle)
{
    TStateLock Lock;
    const TMenuData* const Menu = MenuOf(Handle);
    return Menu ? static_cast<int>(Menu->Items.size()) : -1;
}

UINT GetMenuItemID(HMENU Menu, int Position)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, static_cast<UINT>(Position), MF_BYPOSITION);
    return !Place || Place.Item().SubMenu ? ~0u : Place.Item().Id;
}

HMENU GetSubMenu(HMENU Menu, int Position)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, static_cast<UINT>(Position), MF_BYPOSITION);
    return Place ? Place.Item().SubMenu : nullptr;
}

namespace {

// Replaces some state bits and returns what they were, or -1.
DWORD ChangeState(HMENU Menu, UINT Item, UINT Flags, UINT Bits)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return ~0u;
    const DWORD Old = Place.Item().State & Bits;
    Place.Item().State = (Place.Item().State & ~Bits) | (Flags & Bits);
    return Old;
}

} // namespace

DWORD CheckMenuItem(HMENU Menu, UINT Item, UINT Flags)
{
    return ChangeState(Menu, Item, Flags, MF_CHECKED);
}

BOOL EnableMenuItem(HMENU Menu, UINT Item, UINT Flags)
{
    return static_cast<BOOL>(ChangeState(Menu, Item, Flags, MF_GRAYED | MF_DISABLED));
}

BOOL HiliteMenuItem(HWND, HMENU Menu, UINT Item, UINT Flags)
{
    return ChangeState(Menu, Item, Flags, MF_HILITE) != ~0u;
}

BOOL CheckMenuRadioItem(HMENU Menu, UINT First, UINT Last, UINT Checked, UINT Flags)
{
    TStateLock Lock;
    BOOL Done = FALSE;
    const TMenuData* Holder = nullptr;
    for (UINT Number = First; Number <= Last; ++Number) {
        const TItemPlace Place = FindItem(Menu, Number, Flags);
        if (!Place || Place.Item().IsSeparator() || (Holder && Place.Menu != Holder))
            continue;
        Holder = Place.Menu;
        TMenuEntry& Item = Place.Item();
        if (Number == Checked) {
            Item.Type |= MFT_RADIOCHECK;
            Item.State |= MFS_CHECKED;
            Done = TRUE;
        } else {
            Item.State &= ~static_cast<UINT>(MFS_CHECKED);
        }
    }
    return Done;
}

BOOL SetMenuDefaultItem(HMENU Handle, UINT Item, UINT ByPosition)
{
    TStateLock Lock;
    TMenuData* const Menu = MenuOf(Handle);
    if (!Menu)
        return FALSE;
    BOOL Found = Item == ~0u;
    for (std::size_t Position = 0; Position < Menu->Items.size(); ++Position) {
        TMenuEntry& Each = Menu->Items[Position];
        Each.State &= ~static_cast<UINT>(MFS_DEFAULT);
        if (!Found && Item == (ByPosition ? static_cast<UINT>(Position) : Each.Id)) {
            Each.State |= MFS_DEFAULT;
            Found = TRUE;
        }
    }
    return Found;
}

UINT GetMenuDefaultItem(HMENU Handle, UINT ByPosition, UINT)
{
    TStateLock Lock;
    const TMenuData* const Menu = MenuOf(Handle);
    if (Menu)
        for (std::size_t Position = 0; Position < Menu->Items.size(); ++Position)
            if (Menu->Items[Position].State & MFS_DEFAULT)
                return ByPosition ? static_cast<UINT>(Position) : Menu->Items[Position].Id;
    return ~0u;
}

BOOL SetMenuItemBitmaps(HMENU Menu, UINT Item, UINT Flags, HBITMAP Unchecked, HBITMAP Checked)
{
    TStateLock Lock;
    const TItemPlace Place = FindItem(Menu, Item, Flags);
    if (!Place)
        return FALSE;
    Place.Item().Unchecked = Unchecked;
    Place.Item().Checked = Checked;
    return TRUE;
}

BOOL GetMenuInfo(HMENU Handle, MENUINFO* Info)
{
    TStateLock Lock;
    const TMenuData* const Menu = MenuOf(Handle);
    if (!Menu || !Info || Info->cbSize != sizeof(MENUINFO))
        return FALSE;
    const DWORD Mask = Info->fMask;
    *Info = Menu->Info;
    Info->cbSize = sizeof(MENUINFO);
    Info->fMask = Mask;
    return TRUE;
}

BOOL SetMenuInfo(HMENU Handle, const MENUINFO* Info)
{
    TStateLock Lock;
    TMenuData* const Menu = MenuOf(Handle);
    if (!Menu || !Info || Info->cbSize != sizeof(MENUINFO))
        return FALSE;
    MENUINFO& Mine = Menu->Info;
    if (Info->fMask & MIM_STYLE)
        Mine.dwStyle = Info->dwStyle;
    if (Info->fMask & MIM_MAXHEIGHT)
        Mine.cyMax = Info->cyMax;
    if (Info->fMask & MIM_BACKGROUND)
        Mine.hbrBack = Info->hbrBack;
    if (Info->fMask & MIM_HELPID)
        Mine.dwContextHelpID = Info->dwContextHelpID;
    if (Info->fMask & MIM_MENUDATA)
        Mine.dwMenuData = Info->dwMenuData;
    return TRUE;
}

LONG GetMenuCheckMarkDimensions()
{
    return MAKELONG(GetSystemMetrics(SM_CXMENUCHECK), GetSystemMetrics(SM_CYMENUCHECK));
}
