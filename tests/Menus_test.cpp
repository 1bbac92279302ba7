#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/winapi.h"

namespace {

using TLines = std::vector<std::string>;

std::string TextOf(HMENU Menu, UINT Item, UINT Flags)
{
    char Text[60] = "";
    const int Size = GetMenuStringA(Menu, Item, Text, sizeof(Text), Flags);
    EXPECT_EQ(Size, static_cast<int>(std::string(Text).size()));
    return Text;
}

TLines TextsOf(HMENU Menu, int Count)
{
    TLines Result;
    for (int Position = 0; Position < Count; ++Position)
        Result.push_back(TextOf(Menu, static_cast<UINT>(Position), MF_BYPOSITION));
    return Result;
}

TEST(Menus, ItemsAreFoundByCommandInSubmenus)
{
    const HMENU Bar = CreateMenu();
    const HMENU File = CreatePopupMenu();
    AppendMenuA(Bar, MF_POPUP, reinterpret_cast<UINT_PTR>(File), "&File");
    AppendMenuA(File, MF_STRING, 11, "&Open");
    AppendMenuA(File, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(File, MF_STRING | MF_CHECKED | MF_GRAYED, 12, "E&xit");
    EXPECT_EQ(TextOf(Bar, 12, MF_BYCOMMAND), "E&xit");
    EXPECT_EQ(GetMenuItemID(Bar, 0), ~0u);
    EXPECT_EQ(GetSubMenu(Bar, 0), File);
    EXPECT_EQ(GetMenuItemCount(File), 3);
    EXPECT_EQ(GetMenuState(Bar, 0, MF_BYPOSITION), 0x300u | MF_POPUP);
    EXPECT_EQ(GetMenuState(File, 12, MF_BYCOMMAND), static_cast<UINT>(MF_CHECKED | MF_GRAYED));
    EXPECT_EQ(GetMenuState(File, 1, MF_BYPOSITION) & MF_SEPARATOR, static_cast<UINT>(MF_SEPARATOR));
    EXPECT_EQ(CheckMenuItem(Bar, 12, MF_UNCHECKED), static_cast<DWORD>(MF_CHECKED));
    EXPECT_EQ(CheckMenuItem(Bar, 99, MF_UNCHECKED), ~0u);
    EXPECT_EQ(EnableMenuItem(Bar, 12, MF_ENABLED), MF_GRAYED);
    EXPECT_TRUE(InsertMenuA(Bar, 12, MF_BYCOMMAND | MF_STRING, 13, "Before"));
    EXPECT_EQ(TextsOf(File, 4), (TLines{"&Open", "", "Before", "E&xit"}));
    EXPECT_TRUE(ModifyMenuA(Bar, 11, MF_BYCOMMAND | MF_STRING, 21, "Open\xC3\xA4"));
    EXPECT_EQ(TextOf(File, 0, MF_BYPOSITION), "Open\xC3\xA4");
    EXPECT_EQ(GetMenuItemID(File, 0), 21u);
    EXPECT_TRUE(CheckMenuRadioItem(File, 2, 3, 3, MF_BYPOSITION));
    EXPECT_EQ(GetMenuState(File, 3, MF_BYPOSITION), static_cast<UINT>(MF_CHECKED | MFT_RADIOCHECK));
    EXPECT_TRUE(RemoveMenu(Bar, 0, MF_BYPOSITION));
    EXPECT_TRUE(IsMenu(File)) << "removed, not deleted";
    AppendMenuA(Bar, MF_POPUP, reinterpret_cast<UINT_PTR>(File), "&File");
    EXPECT_TRUE(DestroyMenu(Bar));
    EXPECT_FALSE(IsMenu(File));
    EXPECT_EQ(GetMenuItemCount(Bar), -1);
}

TEST(Menus, InformationIsReadAndWrittenInParts)
{
    const HMENU Menu = CreatePopupMenu();
    char Text[8] = "first";
    MENUITEMINFOA Info{};
    Info.cbSize = sizeof(Info);
    Info.fMask = MIIM_ID | MIIM_STRING | MIIM_DATA | MIIM_STATE;
    Info.wID = 5;
    Info.dwTypeData = Text;
    Info.dwItemData = 77;
    Info.fState = MFS_CHECKED;
    ASSERT_TRUE(InsertMenuItemA(Menu, 0, TRUE, &Info));
    Info.fMask = MIIM_STRING;
    Info.dwTypeData = nullptr;
    EXPECT_TRUE(GetMenuItemInfoA(Menu, 5, FALSE, &Info));
    EXPECT_EQ(Info.cch, 5u);
    Info.dwTypeData = Text;
    Info.cch = 6;
    EXPECT_TRUE(GetMenuItemInfoA(Menu, 5, FALSE, &Info));
    EXPECT_STREQ(Text, "first");
    EXPECT_EQ(Info.cch, 5u);
    Info.fMask = MIIM_ID;
    Info.wID = 6;
    EXPECT_TRUE(SetMenuItemInfoA(Menu, 0, TRUE, &Info));
    EXPECT_FALSE(GetMenuItemInfoA(Menu, 5, FALSE, &Info));
    Info.fMask = MIIM_DATA | MIIM_STATE;
    EXPECT_TRUE(GetMenuItemInfoA(Menu, 6, FALSE, &Info));
    EXPECT_EQ(Info.dwItemData, 77u);
    EXPECT_EQ(Info.fState, static_cast<UINT>(MFS_CHECKED));
    Info.cbSize = 1;
    EXPECT_FALSE(GetMenuItemInfoA(Menu, 6, FALSE, &Info));
    DestroyMenu(Menu);
}

TLines Log;

LRESULT CALLBACK MenuRecorder(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_ENTERMENULOOP:
        Log.push_back("enter " + std::to_string(WParam));
        break;
    case WM_EXITMENULOOP:
        Log.push_back("exit " + std::to_string(WParam));
        break;
    case WM_INITMENU:
        Log.push_back("initmenu");
        break;
    case WM_INITMENUPOPUP:
        Log.push_back("initpopup " + std::to_string(LOWORD(LParam)));
        break;
    case WM_UNINITMENUPOPUP:
        Log.push_back("uninitpopup");
        break;
    case WM_MENUSELECT:
        Log.push_back(HIWORD(WParam) == 0xffff ? "select none" : "select " + std::to_string(LOWORD(WParam)));
        break;
    case WM_COMMAND:
        Log.push_back("command " + std::to_string(LOWORD(WParam)) + (HIWORD(WParam) ? " key" : ""));
        break;
    default:
        break;
    }
    return DefWindowProcA(Window, Message, WParam, LParam);
}

HWND MakeWindow(DWORD Style)
{
    WNDCLASSEXA Class{};
    Class.cbSize = sizeof(Class);
    Class.lpfnWndProc = MenuRecorder;
    Class.hInstance = GetModuleHandleA(nullptr);
    Class.lpszClassName = "MenuRecorder";
    RegisterClassExA(&Class);
    return CreateWindowExA(0, "MenuRecorder", "Menus", Style, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                           nullptr);
}

TEST(Menus, TheSystemMenuReadsAsTheSystemsOne)
{
    const HWND Window = MakeWindow(WS_OVERLAPPEDWINDOW);
    const HMENU Menu = GetSystemMenu(Window, FALSE);
    EXPECT_EQ(TextsOf(Menu, 7),
              (TLines{"&Restore", "&Move", "&Size", "Mi&nimize", "Ma&ximize", "", "&Close\tAlt+F4"}));
    EXPECT_EQ(GetMenuItemID(Menu, 6), static_cast<UINT>(SC_CLOSE));
    EXPECT_EQ(GetMenuDefaultItem(Menu, FALSE, 0), static_cast<UINT>(SC_CLOSE));
    ModifyMenuA(Menu, SC_MOVE, MF_BYCOMMAND | MF_STRING, SC_MOVE, "&Verschieben");
    EXPECT_EQ(TextOf(GetSystemMenu(Window, FALSE), SC_MOVE, MF_BYCOMMAND), "&Verschieben");
    EXPECT_EQ(GetSystemMenu(Window, TRUE), nullptr);
    EXPECT_EQ(TextOf(GetSystemMenu(Window, FALSE), SC_MOVE, MF_BYCOMMAND), "&Move");
    const HWND Bare = MakeWindow(WS_POPUP);
    EXPECT_EQ(GetSystemMenu(Bare, FALSE), nullptr);
    DestroyWindow(Bare);
    DestroyWindow(Window);
    EXPECT_FALSE(IsMenu(Menu));
}

TEST(Menus, ABarTakesItsHeightFromTheClientArea)
{
    const HWND Window = MakeWindow(WS_OVERLAPPEDWINDOW);
    const HMENU Bar = CreateMenu();
    AppendMenuA(Bar, MF_STRING, 1, "Item");
    RECT Before, After;
    GetClientRect(Window, &Before);
    SetMenu(Window, Bar);
    GetClientRect(Window, &After);
    EXPECT_EQ(Before.bottom - After.bottom, GetSystemMetrics(SM_CYMENU));
    EXPECT_EQ(GetMenu(Window), Bar);
    DestroyWindow(Window);
    EXPECT_FALSE(IsMenu(Bar)) << "goes with its window";
}

TEST(Menus, PopupsAreRunByKeys)
{
    const HWND Window = MakeWindow(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HMENU Menu = CreatePopupMenu();
    const HMENU Sub = CreatePopupMenu();
    AppendMenuA(Menu, MF_STRING, 1, "&One");
    AppendMenuA(Menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(Menu, MF_STRING, 2, "&Two");
    AppendMenuA(Menu, MF_POPUP, reinterpret_cast<UINT_PTR>(Sub), "&More");
    AppendMenuA(Sub, MF_STRING, 3, "T&hree");
    const struct {
        const char* Name;
        std::vector<WPARAM> Keys;
        BOOL Chosen;
        TLines Expected;
    } Cases[] = {
        {"arrow and return",
         {VK_DOWN, VK_DOWN, VK_RETURN},
         2,
         {"enter 1", "initmenu", "initpopup 0", "select 1", "select 2", "uninitpopup", "select none",
          "exit 1"}},
        {"escape",
         {VK_DOWN, VK_ESCAPE},
         0,
         {"enter 1", "initmenu", "initpopup 0", "select 1", "uninitpopup", "select none", "exit 1"}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        Log.clear();
        for (const WPARAM Key : Case.Keys)
            PostMessageA(Window, WM_KEYDOWN, Key, 0);
        EXPECT_EQ(TrackPopupMenuEx(Menu, TPM_RETURNCMD, 10, 10, Window, nullptr), Case.Chosen);
        EXPECT_EQ(Log, Case.Expected);
    }
    Log.clear();
    PostMessageA(Window, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageA(Window, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(TrackPopupMenuEx(Menu, 0, 10, 10, Window, nullptr));
    MSG Message;
    while (PeekMessageA(&Message, Window, WM_COMMAND, WM_COMMAND, PM_REMOVE))
        DispatchMessageA(&Message);
    ASSERT_FALSE(Log.empty());
    EXPECT_EQ(Log.back(), "command 1");
    DestroyMenu(Menu);
    DestroyWindow(Window);
}

TEST(Menus, AcceleratorsAskTheMenuFirst)
{
    const HWND Window = MakeWindow(WS_OVERLAPPEDWINDOW);
    const HMENU Bar = CreateMenu();
    AppendMenuA(Bar, MF_STRING, 7, "Seven");
    AppendMenuA(Bar, MF_STRING | MF_GRAYED, 8, "Eight");
    SetMenu(Window, Bar);
    ACCEL Keys[] = {{FVIRTKEY, VK_F5, 7}, {FVIRTKEY, VK_F6, 8}, {FVIRTKEY | FCONTROL, 'A', 9}};
    const HACCEL Table = CreateAcceleratorTableA(Keys, 3);
    const struct {
        WPARAM Key;
        int Translated;
        TLines Expected;
    } Cases[] = {
        {VK_F5, 1, {"initmenu", "initpopup 0", "command 7 key"}},
        {VK_F6, 1, {"initmenu", "initpopup 0"}}, // disabled, but taken
        {'A', 0, {}},
    };
    for (const auto& Case : Cases) {
        Log.clear();
        MSG Message{Window, WM_KEYDOWN, Case.Key, 0, 0, {}};
        EXPECT_EQ(TranslateAcceleratorA(Window, Table, &Message), Case.Translated);
        std::erase_if(Log, [](const std::string& Line) { return Line.starts_with("initpopup"); });
        TLines Expected = Case.Expected;
        std::erase_if(Expected, [](const std::string& Line) { return Line.starts_with("initpopup"); });
        EXPECT_EQ(Log, Expected);
    }
    EXPECT_EQ(CopyAcceleratorTableA(Table, nullptr, 0), 3);
    EXPECT_TRUE(DestroyAcceleratorTable(Table));
    DestroyWindow(Window);
}

} // namespace
