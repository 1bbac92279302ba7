#include "framework/forms/ShortCuts.h"

#include "framework/rtl/SysUtils.h"

namespace {

struct TKeyName {
    int Key;
    const char* Name;
};

constexpr TKeyName KeyNames[] = {
    {VK_BACK, "BkSp"},  {VK_TAB, "Tab"},     {VK_RETURN, "Enter"}, {VK_ESCAPE, "Esc"}, {VK_SPACE, "Space"},
    {VK_PRIOR, "PgUp"}, {VK_NEXT, "PgDn"},   {VK_END, "End"},      {VK_HOME, "Home"},  {VK_LEFT, "Left"},
    {VK_UP, "Up"},      {VK_RIGHT, "Right"}, {VK_DOWN, "Down"},    {VK_INSERT, "Ins"}, {VK_DELETE, "Del"},
};

// What the keyboard's driver calls the key.
std::string SystemKeyName(int Key)
{
    const UINT ScanCode = MapVirtualKeyA(static_cast<UINT>(Key), 0) << 16;
    char Name[64] = {};
    if (ScanCode == 0 || GetKeyNameTextA(static_cast<LONG>(ScanCode), Name, sizeof Name) == 0)
        return "";
    return Name;
}

std::string KeyName(int Key)
{
    for (const TKeyName& Known : KeyNames)
        if (Known.Key == Key)
            return Known.Name;
    if ((Key >= '0' && Key <= '9') || (Key >= 'A' && Key <= 'Z'))
        return std::string(1, static_cast<char>(Key));
    if (Key >= VK_NUMPAD0 && Key <= VK_NUMPAD9)
        return std::string(1, static_cast<char>('0' + Key - VK_NUMPAD0));
    if (Key >= VK_F1 && Key <= VK_F24)
        return "F" + std::to_string(Key - VK_F1 + 1);
    return SystemKeyName(Key);
}

constexpr TKeyName Modifiers[] = {{scShift, "Shift+"}, {scCtrl, "Ctrl+"}, {scAlt, "Alt+"}, {scCtrl, "^"}};

// Takes one shift key's name off the front of Text.
int TakeModifier(std::string_view& Text)
{
    for (const TKeyName& Modifier : Modifiers) {
        const std::string_view Name = Modifier.Name;
        if (Text.size() > Name.size() && SameText(Text.substr(0, Name.size()), Name)) {
            Text.remove_prefix(Name.size());
            return Modifier.Key;
        }
    }
    return 0;
}

} // namespace

TShortCut ShortCut(uint16_t Key, TShiftState Shift)
{
    int Value = Key & 0xFF;
    if (Shift.Contains(ssShift))
        Value |= scShift;
    if (Shift.Contains(ssCtrl))
        Value |= scCtrl;
    if (Shift.Contains(ssAlt))
        Value |= scAlt;
    return static_cast<TShortCut>(Value);
}

void ShortCutToKey(TShortCut Value, uint16_t& Key, TShiftState& Shift)
{
    Key = Value & 0xFF;
    Shift = {};
    if (Value & scShift)
        Shift.Include(ssShift);
    if (Value & scCtrl)
        Shift.Include(ssCtrl);
    if (Value & scAlt)
        Shift.Include(ssAlt);
}

std::string ShortCutToText(TShortCut Value)
{
    const std::string Name = KeyName(Value & 0xFF);
    if (Name.empty())
        return "";
    std::string Result;
    for (int I = 0; I < 3; ++I)
        if (Value & Modifiers[I].Key)
            Result += Modifiers[I].Name;
    return Result + Name;
}

TShortCut TextToShortCut(std::string_view Text)
{
    int Shift = 0;
    while (const int Modifier = TakeModifier(Text))
        Shift |= Modifier;
    if (Text.empty())
        return scNone;
    for (int Key = VK_BACK; Key <= 0xFF; ++Key)
        if (SameText(KeyName(Key), Text))
            return static_cast<TShortCut>(Shift | Key);
    return scNone;
}

TShortCut ShortCutFromMessage(const TMessage& Message)
{
    int Value = static_cast<int>(Message.WParam & 0xFF);
    if (GetKeyState(VK_SHIFT) < 0)
        Value |= scShift;
    if (GetKeyState(VK_CONTROL) < 0)
        Value |= scCtrl;
    if (Message.LParam & 0x20000000)
        Value |= scAlt;
    return static_cast<TShortCut>(Value);
}
