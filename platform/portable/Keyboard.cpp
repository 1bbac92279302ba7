// The keyboard: key messages, their characters and the state of the keys.
#include <algorithm>
#include <string>

#include "platform/portable/Thread.h"

namespace {

constexpr LPARAM KeyIsUp = static_cast<LPARAM>(1) << 31;
constexpr LPARAM AltIsDown = 1 << 29;
constexpr BYTE Down = 0x80;

// Characters of the keys that are neither letters nor digits, on a US keyboard.
constexpr struct {
    BYTE Key;
    char Plain;
    char Shifted;
} Signs[] = {{VK_OEM_1, ';', ':'},     {VK_OEM_PLUS, '=', '+'},   {VK_OEM_COMMA, ',', '<'},
             {VK_OEM_MINUS, '-', '_'}, {VK_OEM_PERIOD, '.', '>'}, {VK_OEM_2, '/', '?'},
             {VK_OEM_3, '`', '~'},     {VK_OEM_4, '[', '{'},      {VK_OEM_5, '\\', '|'},
             {VK_OEM_6, ']', '}'},     {VK_OEM_7, '\'', '"'},     {VK_SPACE, ' ', ' '},
             {VK_MULTIPLY, '*', '*'},  {VK_ADD, '+', '+'},        {VK_SUBTRACT, '-', '-'},
             {VK_DIVIDE, '/', '/'},    {VK_DECIMAL, '.', '.'},    {VK_BACK, '\b', '\b'},
             {VK_TAB, '\t', '\t'},     {VK_RETURN, '\r', '\r'},   {VK_ESCAPE, '\x1b', '\x1b'}};
constexpr char ShiftedDigits[] = ")!@#$%^&*(";

bool IsDown(int Key)
{
    return (CurrentThread()->Keys[static_cast<std::size_t>(Key)] & Down) != 0;
}

// The character that the key types with the keys held as they are; 0 for none.
char CharacterOf(WPARAM Key)
{
    const bool Shift = IsDown(VK_SHIFT);
    if (Key >= 'A' && Key <= 'Z') {
        if (IsDown(VK_CONTROL) && !IsDown(VK_MENU))
            return static_cast<char>(Key - 'A' + 1);
        const bool Capital = Shift != ((CurrentThread()->Keys[VK_CAPITAL] & 1) != 0);
        return static_cast<char>(Capital ? Key : Key + 32);
    }
    if (IsDown(VK_CONTROL) && !IsDown(VK_MENU))
        return Key == VK_RETURN   ? '\n'
               : Key == VK_BACK   ? '\x7f'
               : Key == VK_ESCAPE ? '\x1b'
               : Key == VK_SPACE  ? ' '
                                  : 0;
    if (Key >= '0' && Key <= '9')
        return Shift ? ShiftedDigits[Key - '0'] : static_cast<char>(Key);
    if (Key >= VK_NUMPAD0 && Key <= VK_NUMPAD9)
        return static_cast<char>('0' + (Key - VK_NUMPAD0));
    for (const auto& Sign : Signs)
        if (Sign.Key == Key)
            return Shift ? Sign.Shifted : Sign.Plain;
    return 0;
}

void SetKey(TThread& Thread, WPARAM Key, bool Pressed)
{
    BYTE& State = Thread.Keys[Key & 0xff];
    if (Pressed)
        State = static_cast<BYTE>(((State & Down) ? State : State ^ 1) | Down);
    else
        State &= static_cast<BYTE>(~Down);
}

} // namespace

// Only keys pressed with keybd_event change the key state, as in the system:
// messages that a program posts itself do not.
void FollowKeys(TThread& Thread, const MSG& Message)
{
    if (Message.pt.x != KeyboardMark)
        return;
    const bool Pressed = Message.message == WM_KEYDOWN || Message.message == WM_SYSKEYDOWN;
    const bool Released = Message.message == WM_KEYUP || Message.message == WM_SYSKEYUP;
    if (Pressed || Released)
        SetKey(Thread, Message.wParam, Pressed);
}

void keybd_event(BYTE Key, BYTE Scan, DWORD Flags, ULONG_PTR)
{
    TThread& Thread = *CurrentThread();
    TStateLock Lock;
    static std::array<BYTE, 256> Held{};
    const bool Up = (Flags & KEYEVENTF_KEYUP) != 0;
    Held[Key] = Up ? 0 : Down;
    const bool Alt = Held[VK_MENU] && !Held[VK_CONTROL];
    const bool System = Alt || Key == VK_MENU || Key == VK_F10;
    const HWND Target = Thread.Focus ? Thread.Focus : Thread.Active;
    const LPARAM LParam = 1 | static_cast<LPARAM>(Scan) << 16 | (Alt ? AltIsDown : 0) |
                          (Up ? KeyIsUp | static_cast<LPARAM>(1) << 30 : 0);
    const UINT Message = System ? (Up ? WM_SYSKEYUP : WM_SYSKEYDOWN) : (Up ? WM_KEYUP : WM_KEYDOWN);
    Thread.Input.push_back({Target, Message, Key, LParam, GetTickCount(), {KeyboardMark, 0}});
    StateChanged().notify_all();
}

BOOL TranslateMessage(const MSG* Message)
{
    if (Message->message != WM_KEYDOWN && Message->message != WM_SYSKEYDOWN)
        return Message->message == WM_KEYUP || Message->message == WM_SYSKEYUP;
    const bool System = Message->message == WM_SYSKEYDOWN;
    if (const char Character = CharacterOf(Message->wParam)) {
        TThread& Thread = *CurrentThread();
        TStateLock Lock;
        MSG Typed = *Message;
        Typed.message = System ? WM_SYSCHAR : WM_CHAR;
        Typed.wParam = static_cast<BYTE>(Character);
        Typed.pt = {};
        Thread.Posted.push_back(Typed);
    }
    return TRUE;
}

SHORT GetKeyState(int Key)
{
    const BYTE State = CurrentThread()->Keys[static_cast<std::size_t>(Key & 0xff)];
    return static_cast<SHORT>(((State & Down) ? 0xFF80 : 0) | (State & 1));
}

SHORT GetAsyncKeyState(int Key)
{
    return static_cast<SHORT>(GetKeyState(Key) < 0 ? 0x8000 : 0);
}

BOOL GetKeyboardState(PBYTE State)
{
    std::copy(CurrentThread()->Keys.begin(), CurrentThread()->Keys.end(), State);
    return TRUE;
}

BOOL SetKeyboardState(LPBYTE State)
{
    std::copy(State, State + 256, CurrentThread()->Keys.begin());
    return TRUE;
}

SHORT VkKeyScanA(CHAR Character)
{
    if ((Character >= 'a' && Character <= 'z') || (Character >= '0' && Character <= '9'))
        return static_cast<SHORT>(Character >= 'a' ? Character - 32 : Character);
    if (Character >= 'A' && Character <= 'Z')
        return static_cast<SHORT>(Character | 0x100);
    for (int Digit = 0; Digit < 10; ++Digit)
        if (ShiftedDigits[Digit] == Character)
            return static_cast<SHORT>(('0' + Digit) | 0x100);
    for (const auto& Sign : Signs) {
        if (Sign.Plain == Character)
            return Sign.Key;
        if (Sign.Shifted == Character)
            return static_cast<SHORT>(Sign.Key | 0x100);
    }
    return -1;
}

UINT MapVirtualKeyA(UINT Code, UINT Kind)
{
    constexpr UINT KeyToCharacter = 2;
    if (Kind != KeyToCharacter)
        return Code;
    if ((Code >= 'A' && Code <= 'Z') || (Code >= '0' && Code <= '9'))
        return Code;
    for (const auto& Sign : Signs)
        if (Sign.Key == Code)
            return static_cast<UINT>(Sign.Plain);
    return 0;
}

// LParam carries the key's code where the system has the scan code: they are
// the same here (MapVirtualKeyA).
int GetKeyNameTextA(LONG LParam, LPSTR Name, int Size)
{
    const auto Key = static_cast<UINT>(LParam >> 16) & 0xff;
    constexpr struct {
        BYTE Key;
        const char* Name;
    } Names[] = {{VK_CONTROL, "Ctrl"},  {VK_SHIFT, "Shift"},    {VK_MENU, "Alt"},    {VK_BACK, "Backspace"},
                 {VK_TAB, "Tab"},       {VK_RETURN, "Enter"},   {VK_ESCAPE, "Esc"},  {VK_SPACE, "Space"},
                 {VK_PRIOR, "Page Up"}, {VK_NEXT, "Page Down"}, {VK_END, "End"},     {VK_HOME, "Home"},
                 {VK_LEFT, "Left"},     {VK_UP, "Up"},          {VK_RIGHT, "Right"}, {VK_DOWN, "Down"},
                 {VK_INSERT, "Insert"}, {VK_DELETE, "Delete"}};
    for (const auto& Each : Names)
        if (Each.Key == Key)
            return CopyText(Each.Name, Name, Size);
    if (Key >= VK_F1 && Key <= VK_F24)
        return CopyText("F" + std::to_string(Key - VK_F1 + 1), Name, Size);
    const UINT Character = MapVirtualKeyA(Key, 2);
    return CopyText(Character ? std::string(1, static_cast<char>(Character)) : std::string(), Name, Size);
}

HKL GetKeyboardLayout(DWORD)
{
    return reinterpret_cast<HKL>(static_cast<ULONG_PTR>(0x04090409));
}

int GetKeyboardLayoutList(int Count, HKL* List)
{
    if (Count > 0 && List)
        List[0] = GetKeyboardLayout(0);
    return 1;
}

HKL LoadKeyboardLayoutA(LPCSTR, UINT)
{
    return GetKeyboardLayout(0);
}

HKL ActivateKeyboardLayout(HKL, UINT)
{
    return GetKeyboardLayout(0);
}
