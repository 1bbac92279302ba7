// Texts and numbers of a dialog's controls.
#include <cctype>
#include <climits>
#include <cstdlib>
#include <string>

#include "platform/portable/Window.h"

LRESULT SendDlgItemMessageA(HWND Dialog, int Id, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const HWND Item = GetDlgItem(Dialog, Id);
    return Item ? SendMessageA(Item, Message, WParam, LParam) : 0;
}

BOOL SetDlgItemTextA(HWND Dialog, int Id, LPCSTR Text)
{
    return static_cast<BOOL>(SendDlgItemMessageA(Dialog, Id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text)));
}

UINT GetDlgItemTextA(HWND Dialog, int Id, LPSTR Text, int Size)
{
    if (Text && Size > 0)
        Text[0] = 0;
    return static_cast<UINT>(SendDlgItemMessageA(Dialog, Id, WM_GETTEXT, static_cast<WPARAM>(Size),
                                                 reinterpret_cast<LPARAM>(Text)));
}

BOOL SetDlgItemInt(HWND Dialog, int Id, UINT Value, BOOL Signed)
{
    const std::string Text = Signed ? std::to_string(static_cast<int>(Value)) : std::to_string(Value);
    SendDlgItemMessageA(Dialog, Id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text.c_str()));
    return TRUE;
}

UINT GetDlgItemInt(HWND Dialog, int Id, BOOL* Translated, BOOL Signed)
{
    char Text[30] = "";
    if (Translated)
        *Translated = FALSE;
    if (!GetDlgItemTextA(Dialog, Id, Text, sizeof(Text)))
        return 0;
    char* End = nullptr;
    const long long Value = std::strtoll(Text, &End, 10);
    while (*End && std::isspace(static_cast<BYTE>(*End)))
        ++End;
    const bool Fits = Signed ? Value >= INT_MIN && Value <= INT_MAX : Value >= 0 && Value <= UINT_MAX;
    if (End == Text || *End || !Fits)
        return 0;
    if (Translated)
        *Translated = TRUE;
    return static_cast<UINT>(Value);
}
