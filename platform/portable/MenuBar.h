// Menus, as the sources of this folder share them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/portable/Window.h"

struct TMenuEntry {
    UINT Type = 0;  // MFT_ flags
    UINT State = 0; // MFS_ flags
    UINT Id = 0;
    HMENU SubMenu = nullptr;
    bool HasText = false;
    std::string Text;
    HBITMAP Checked = nullptr;
    HBITMAP Unchecked = nullptr;
    HBITMAP Bitmap = nullptr;
    ULONG_PTR Data = 0;

    bool IsSeparator() const { return (Type & MFT_SEPARATOR) != 0; }
    bool IsEnabled() const { return (State & (MF_GRAYED | MF_DISABLED)) == 0; }
};

struct TMenuData {
    HMENU Handle = nullptr;
    std::vector<TMenuEntry> Items;
    bool Popup = false;
    bool System = false; // what is chosen arrives as WM_SYSCOMMAND
    MENUINFO Info{};
};

// The menu of a handle; null, with ERROR_INVALID_MENU_HANDLE set, without one.
// Lives until the next message is sent.
TMenuData* MenuOf(HMENU Handle);

// Where an item is found: the menu that holds it and its position there.
struct TItemPlace {
    TMenuData* Menu = nullptr;
    std::size_t Position = 0;

    explicit operator bool() const { return Menu != nullptr; }
    TMenuEntry& Item() const { return Menu->Items[Position]; }
};

// Finds by position in the menu itself, or by command also in its submenus; a
// command prefers an item to a submenu of the same number.
TItemPlace FindItem(HMENU Menu, UINT Item, UINT Flags);

// Gives a window that is being created its menu bar.
void AttachMenu(TWindow& Window, HMENU Menu);

// Runs the menu bar of a window by keyboard; a character opens the item with
// that mnemonic.
void TrackMenuBarByKey(HWND Window, char Mnemonic);

// The character after the last single "&" as typed without case; 0 without one.
char MnemonicOf(const std::string& Text);
